#include "datacollectorcfgimpl.h"

namespace kaz::kazparser {

DataCollectorCfgImpl::DataCollectorCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

DataCollectorCfgImpl::DataCollectorCfgImpl(const std::wstring& elementName,
                                           kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
    : PlugInNode(elementName, attributes, parent) {}

INodeCfg* DataCollectorCfgImpl::clone() const {
    return new DataCollectorCfgImpl(*this);
}

}  // namespace kaz::kazparser
