#include "presentercfgimpl.h"

namespace kaz::kazparser {

PresenterCfgImpl::PresenterCfgImpl(INodeCfg* parent) : PlugInNode(parent) {}

PresenterCfgImpl::PresenterCfgImpl(const std::wstring& elementName,
                                   kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
    : PlugInNode(elementName, attributes, parent) {}

INodeCfg* PresenterCfgImpl::clone() const {
    return new PresenterCfgImpl(*this);
}

}  // namespace kaz::kazparser
