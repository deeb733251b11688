#include "presentercfgimpl.h"

namespace kaz::kazparser {

PresenterCfgImpl::PresenterCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

PresenterCfgImpl::PresenterCfgImpl(const ElementStart& element, INodeCfg* parent)
    : PlugInNode(element, parent) {}

INodeCfg* PresenterCfgImpl::clone() const {
    return new PresenterCfgImpl(*this);
}

}  // namespace kaz::kazparser
