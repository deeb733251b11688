#include "presentationgroupcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& PresentationGroupCfgImpl::tag() {
    return kinds::tag(INodeCfg::PresentationGroup);
}

PresentationGroupCfgImpl::PresentationGroupCfgImpl(const AttributeList& attributes,
                                                   INodeCfg* parent)
    : PresentationNode(attributes, parent) {
    for (const auto& [name, value] : attributes)
        if (name == L"previewImg") previewImg_ = value;
}

bool PresentationGroupCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, startTag().text(L"previewImg", previewImg_).str(), tag());
}

bool PresentationGroupCfgImpl::setPreviewImg(const std::wstring& image) {
    previewImg_ = image;
    return true;
}

}  // namespace kaz::kazparser
