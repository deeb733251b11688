#include "userefpresentationelementcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseRefPresentationElementCfgImpl::tag() {
    return kinds::tag(INodeCfg::UseRefPresentationElement);
}

UseRefPresentationElementCfgImpl::UseRefPresentationElementCfgImpl(const AttributeList& attributes,
                                                                   INodeCfg* parent)
    : UsePresentationElementNode(attributes, parent) {
    for (const auto& [name, value] : attributes)
        if (name == L"refFileName") refFileName_ = value;
}

bool UseRefPresentationElementCfgImpl::setRefFileName(const std::wstring& fileName) {
    refFileName_ = fileName;
    return true;
}

}  // namespace kaz::kazparser
