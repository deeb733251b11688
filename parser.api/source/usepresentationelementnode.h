#pragma once

#include <string>

#include "displaytext.h"
#include "fixedchildren.h"
#include "kazparser/IExtParamsCfg.h"
#include "nodeimpl.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The state and behaviour shared by the fixed and the file reference to a
// presentation element: the active flag, label and description with their
// string IDs and display texts, element ID, main-data reference, and the
// extension-parameter child, before the kind's own `Slots`. `Interface` is
// the kind's interface, `Derived` the implementation class, which supplies
//   kNodeType     its node type;
//   tag()         the tag it is written under (also its getName()).
template <class Interface, class Derived, class... Slots>
class UsePresentationElementNode
    : public FixedChildren<NodeImpl<Interface>, Slot<IExtParamsCfg, INodeCfg::ExtParams>,
                           Slots...> {
    using Children =
        FixedChildren<NodeImpl<Interface>, Slot<IExtParamsCfg, INodeCfg::ExtParams>, Slots...>;

public:
    const std::wstring& getName() const override { return Derived::tag(); }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }

    bool setActive(bool active) override {
        active_ = active;
        return true;
    }
    bool isActive() const override { return active_; }
    const std::wstring& getDisplayLabel() const override { return displayLabel_; }
    const std::wstring& getDisplayDesc() const override { return displayDesc_; }
    const std::wstring& getLabel() const override { return label_; }
    const std::wstring& getDesc() const override { return desc_; }
    const std::wstring& getElemID() const override { return elemID_; }
    const std::wstring& getRefMainData() const override { return refMainData_; }
    const std::wstring& getLabelStringID() const override { return labelStringID_; }
    const std::wstring& getDescStringID() const override { return descStringID_; }
    void setDisplayLabel(const std::wstring& text) override { displayLabel_ = text; }
    void setDisplayDesc(const std::wstring& text) override { displayDesc_ = text; }
    void setLabel(const std::wstring& label) override { label_ = label; }
    void setDesc(const std::wstring& desc) override { desc_ = desc; }
    void setElemID(const std::wstring& id) override { elemID_ = id; }
    void setRefMainData(const std::wstring& reference) override { refMainData_ = reference; }
    void setLabelStringID(const std::wstring& id) override { labelStringID_ = id; }
    void setDescStringID(const std::wstring& id) override { descStringID_ = id; }

    IExtParamsCfg* getExtParams() const override {
        return this->template child<INodeCfg::ExtParams>();
    }
    void setExtParams(IExtParamsCfg* extParams) override {
        this->template setSlot<INodeCfg::ExtParams>(extParams, L"setExtParams");
    }
    IExtParamsCfg* releaseExtParams() override {
        return this->template releaseSlot<INodeCfg::ExtParams>();
    }

protected:
    explicit UsePresentationElementNode(INodeCfg* parent) : Children(parent) {}

    // Reads the shared attributes by local name (the last of a repeated one
    // wins; others are left to the kind), then resolves the display texts.
    UsePresentationElementNode(const ElementStart& element, INodeCfg* parent) : Children(parent) {
        forEachAttribute(element, AttributeNaming::Local, [&](auto name, auto value) {
            if (name == L"active") {
                active_ = flagValue(value);
            } else if (name == L"label") {
                label_ = displayLabel_ = value;
            } else if (name == L"desc") {
                desc_ = displayDesc_ = value;
            } else if (name == L"labelStringID") {
                labelStringID_ = value;
            } else if (name == L"descStringID") {
                descStringID_ = value;
            } else if (name == L"elemID") {
                elemID_ = value;
            } else if (name == L"refMainData") {
                refMainData_ = value;
            }
        });
        resolveDisplayText(labelStringID_, displayLabel_);
        resolveDisplayText(descStringID_, displayDesc_);
    }

    UsePresentationElementNode(const UsePresentationElementNode& other) = default;

    // Writes the element; `refFileName` is written after "elemID" when not
    // empty (the fixed reference has none).
    bool writeReference(IXmlWriter& out, const std::wstring& refFileName) const {
        return this->writeElement(out, Derived::tag(), [&](StartTag& tag) {
            tag.text(L"elemID", elemID_).text(L"refFileName", refFileName).flag(L"active", active_);
            tag.text(L"refMainData", refMainData_);
            tag.text(L"label", label_).text(L"labelStringID", labelStringID_);
            tag.text(L"desc", desc_).text(L"descStringID", descStringID_);
        });
    }

private:
    std::wstring labelStringID_;
    std::wstring descStringID_;
    std::wstring elemID_;
    std::wstring label_;
    std::wstring desc_;
    std::wstring displayLabel_;
    std::wstring displayDesc_;
    std::wstring refMainData_;
    bool active_ = false;
};

}  // namespace kaz::kazparser
