#include "usefixedpresentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseFixedPresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::UseFixedPresentationElement);
}

UseFixedPresentationElementCfgImpl::UseFixedPresentationElementCfgImpl(
    const UseFixedPresentationElementCfgImpl& other)
    : UsePresentationElementNode(other) {
    element_.cloneFrom(other.element_, this);
}

void UseFixedPresentationElementCfgImpl::deleteChildren() {
    UsePresentationElementNode::deleteChildren();
    element_.reset();
}

bool UseFixedPresentationElementCfgImpl::setChild(INodeCfg* child) {
    fixedchildren::required(child, kClassName, L"setChild");
    switch (child->getNodeType()) {
        case ExtParams:
            setExtParams(dynamic_cast<IExtParamsCfg*>(child));
            return true;
        case PresentationElement:
            setPresentationElement(dynamic_cast<IPresentationElementCfg*>(child));
            return true;
        default:
            return false;
    }
}

void UseFixedPresentationElementCfgImpl::setPresentationElement(IPresentationElementCfg* element) {
    element_.set(fixedchildren::required(element, kClassName, L"setPresentationElement"), this);
}

}  // namespace kaz::kazparser
