#include "datamodifiercfgimpl.h"

namespace kaz::kazparser {

DataModifierCfgImpl::DataModifierCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

DataModifierCfgImpl::DataModifierCfgImpl(const ElementStart& element, INodeCfg* parent)
    : PlugInNode(element, parent) {}

INodeCfg* DataModifierCfgImpl::clone() const {
    return new DataModifierCfgImpl(*this);
}

}  // namespace kaz::kazparser
