#include "presentationgroupcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& PresentationGroupCfgImpl::tag() {
    return kinds::tag(INodeCfg::PresentationGroup);
}

PresentationGroupCfgImpl::PresentationGroupCfgImpl(const ElementStart& element, INodeCfg* parent)
    : PresentationNode(element, parent) {
    forEachAttribute(element, AttributeNaming::Local, [&](auto name, auto value) {
        if (name == L"previewImg") previewImg_ = value;
    });
}

bool PresentationGroupCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, tag(), [this](StartTag& start) {
        addSharedAttributes(start);
        start.text(L"previewImg", previewImg_);
    });
}

bool PresentationGroupCfgImpl::setPreviewImg(const std::wstring& image) {
    previewImg_ = image;
    return true;
}

}  // namespace kaz::kazparser
