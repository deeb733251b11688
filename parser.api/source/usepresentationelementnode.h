#pragma once

#include <string>

#include "childslot.h"
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
// extension-parameter child. `Interface` is the kind's interface, `Derived`
// the implementation class, which supplies
//   kClassName    its qualified name, for error contexts;
//   kNodeType     its node type;
//   tag()         the tag it is written under (also its getName());
//   childSlots()  its children in getChild order, absent ones null.
template <class Interface, class Derived>
class UsePresentationElementNode : public NodeImpl<Interface> {
public:
    const std::wstring& getName() const override { return Derived::tag(); }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }
    unsigned int getChildCount() const override {
        return fixedchildren::presentCount(derived().childSlots());
    }
    INodeCfg* getChild(unsigned int index) const override {
        return fixedchildren::presentChild(derived().childSlots(), index, Derived::kClassName);
    }
    void deleteChildren() override { extParams_.reset(); }

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

    IExtParamsCfg* getExtParams() const override { return extParams_.get(); }
    void setExtParams(IExtParamsCfg* extParams) override {
        extParams_.set(fixedchildren::required(extParams, Derived::kClassName, L"setExtParams"),
                       this);
    }
    IExtParamsCfg* releaseExtParams() override { return extParams_.release(); }

protected:
    explicit UsePresentationElementNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}

    // Reads the shared attributes by exact name (the last of a repeated one
    // wins; others are left to the kind), then resolves the display texts.
    UsePresentationElementNode(const AttributeList& attributes, INodeCfg* parent)
        : NodeImpl<Interface>(parent) {
        for (const auto& [name, value] : attributes) {
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
        }
        resolveDisplayText(labelStringID_, displayLabel_);
        resolveDisplayText(descStringID_, displayDesc_);
    }

    // Copies every text but the XML buffer; the child is deep-copied.
    UsePresentationElementNode(const UsePresentationElementNode& other)
        : NodeImpl<Interface>(other),
          labelStringID_(other.labelStringID_),
          descStringID_(other.descStringID_),
          elemID_(other.elemID_),
          label_(other.label_),
          desc_(other.desc_),
          displayLabel_(other.displayLabel_),
          displayDesc_(other.displayDesc_),
          refMainData_(other.refMainData_),
          active_(other.active_) {
        extParams_.cloneFrom(other.extParams_, this);
    }

    // Writes the element; `refFileName` is written after "elemID" when not
    // empty (the fixed reference has none).
    bool writeReference(IXmlWriter& out, const std::wstring& refFileName) const {
        StartTag tag(Derived::tag());
        tag.text(L"elemID", elemID_).text(L"refFileName", refFileName).flag(L"active", active_);
        tag.text(L"refMainData", refMainData_);
        tag.text(L"label", label_).text(L"labelStringID", labelStringID_);
        tag.text(L"desc", desc_).text(L"descStringID", descStringID_);
        return this->writeElement(out, tag.str(), Derived::tag());
    }

    ChildSlot<IExtParamsCfg> extParams_;

private:
    const Derived& derived() const { return static_cast<const Derived&>(*this); }

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
