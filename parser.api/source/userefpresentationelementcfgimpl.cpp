#include "userefpresentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseRefPresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::UseRefPresentationElement);
}

UseRefPresentationElementCfgImpl::UseRefPresentationElementCfgImpl(const ElementStart& element,
                                                                   INodeCfg* parent)
    : UsePresentationElementNode(element, parent) {
    forEachAttribute(element, AttributeNaming::Local, [&](auto name, auto value) {
        if (name == L"refFileName") refFileName_ = value;
    });
}

bool UseRefPresentationElementCfgImpl::setRefFileName(const std::wstring& fileName) {
    refFileName_ = fileName;
    return true;
}

}  // namespace kaz::kazparser
