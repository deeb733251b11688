#include "userefpresentationelementcfgimpl.h"

namespace kaz::kazparser {

const std::wstring& UseRefPresentationElementCfgImpl::tag() {
    static const std::wstring name = L"UseRefPresentationElement";
    return name;
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
