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

PresentationGroupCfgImpl::PresentationGroupCfgImpl(const PresentationGroupCfgImpl& other)
    : PresentationNode(other), previewImg_(other.previewImg_) {
    elements_.cloneFrom(other.elements_, this);
}

std::array<INodeCfg*, 3> PresentationGroupCfgImpl::childSlots() const {
    return {features_.get(), extraValues_.get(), elements_.get()};
}

bool PresentationGroupCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, startTag().text(L"previewImg", previewImg_).str(), tag());
}

void PresentationGroupCfgImpl::deleteChildren() {
    deleteSharedChildren();
    elements_.reset();
}

bool PresentationGroupCfgImpl::setChild(INodeCfg* child) {
    required(child, L"setChild");
    if (setSharedChild(child)) return true;
    if (child->getNodeType() != PresentationElements) return false;
    setPresentationElements(dynamic_cast<IPresentationElementsCfg*>(child));
    return true;
}

void PresentationGroupCfgImpl::setPresentationElements(IPresentationElementsCfg* elements) {
    elements_.set(required(elements, L"setPresentationElements"), this);
}

IPresentationElementsCfg* PresentationGroupCfgImpl::replacePresentationElements(
    IPresentationElementsCfg* elements) {
    return elements_.replace(required(elements, L"replacePresentationElements"), this);
}

bool PresentationGroupCfgImpl::setPreviewImg(const std::wstring& image) {
    previewImg_ = image;
    return true;
}

}  // namespace kaz::kazparser
