#include "datamodifiercfgimpl.h"

namespace kaz::kazparser {

DataModifierCfgImpl::DataModifierCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

DataModifierCfgImpl::DataModifierCfgImpl(const std::wstring& elementName,
                                         kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
    : PlugInNode(elementName, attributes, parent) {}

INodeCfg* DataModifierCfgImpl::clone() const {
    return new DataModifierCfgImpl(*this);
}

}  // namespace kaz::kazparser
