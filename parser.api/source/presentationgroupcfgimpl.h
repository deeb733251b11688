#pragma once

#include <string>

#include "kazparser/IPresentationGroupCfg.h"
#include "kazxml/SAX.h"
#include "presentationnode.h"

namespace kaz::kazparser {

// "PresentationGroup": the top of a presentation configuration, with its
// features, extra values, element list and a preview image.
class PresentationGroupCfgImpl final
    : public PresentationNode<IPresentationGroupCfg, PresentationGroupCfgImpl,
                              Slot<IPresentationElementsCfg, INodeCfg::PresentationElements>> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::PresentationGroupCfgImpl";
    static constexpr NodeType kNodeType = PresentationGroup;
    static const std::wstring& tag();

    explicit PresentationGroupCfgImpl(INodeCfg* parent) : PresentationNode(parent) {}
    // Reads the element's attributes and "previewImg"; others are ignored.
    PresentationGroupCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override { return new PresentationGroupCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;

    IPresentationElementsCfg* getPresentationElements() const override {
        return child<PresentationElements>();
    }
    void setPresentationElements(IPresentationElementsCfg* elements) override {
        setSlot<PresentationElements>(elements, L"setPresentationElements");
    }
    IPresentationElementsCfg* releasePresentationElements() override {
        return releaseSlot<PresentationElements>();
    }
    IPresentationElementsCfg* replacePresentationElements(
        IPresentationElementsCfg* elements) override {
        return replaceSlot<PresentationElements>(elements, L"replacePresentationElements");
    }

    const std::wstring& getPreviewImg() const override { return previewImg_; }
    bool setPreviewImg(const std::wstring& image) override;
    void setName(const std::wstring& name) override { name_ = name; }
    void setDesc(const std::wstring& desc) override { desc_ = desc; }
    void setSchemaVersion(const std::wstring& version) override { schemaVersion_ = version; }

private:
    PresentationGroupCfgImpl(const PresentationGroupCfgImpl& other) = default;

    std::wstring previewImg_;
};

}  // namespace kaz::kazparser
