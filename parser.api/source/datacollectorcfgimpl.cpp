#include "datacollectorcfgimpl.h"

namespace kaz::kazparser {

DataCollectorCfgImpl::DataCollectorCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

DataCollectorCfgImpl::DataCollectorCfgImpl(const ElementStart& element, INodeCfg* parent)
    : PlugInNode(element, parent) {}

INodeCfg* DataCollectorCfgImpl::clone() const {
    return new DataCollectorCfgImpl(*this);
}

}  // namespace kaz::kazparser
