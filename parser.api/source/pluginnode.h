#pragma once

#include <string>
#include <string_view>

#include "fixedchildren.h"
#include "kazparser/IParamSetsCfg.h"
#include "kazxml/SAX.h"
#include "nodecast.h"
#include "nodeimpl.h"
#include "nodekinds.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The state and behaviour shared by the plug-in kinds: engine file and ID,
// a free element name, a note kept in memory only, and the one
// parameter-set child. `Interface` is the kind's interface (an IPlugInCfg),
// `Derived` the implementation class, which supplies kNodeType.
template <class Interface, class Derived>
class PlugInNode
    : public FixedChildren<NodeImpl<Interface>, Slot<IParamSetsCfg, INodeCfg::ParamSets>> {
    using Children = FixedChildren<NodeImpl<Interface>, Slot<IParamSetsCfg, INodeCfg::ParamSets>>;

public:
    const std::wstring& getName() const override { return name_; }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }

    const std::wstring& getNote() const override { return note_; }
    // One buffer per class: each Derived instantiates its own static.
    const std::wstring& getEngineFile() const override {
        static std::wstring shared;
        shared = engineFile_;
        return shared;
    }
    const std::wstring& getEngineID() const override { return engineID_; }
    void setNote(const std::wstring& note) override { note_ = note; }
    void setEngineFile(const std::wstring& engineFile) override { engineFile_ = engineFile; }
    void setEngineID(const std::wstring& engineID) override { engineID_ = engineID; }
    void setNodeName(const std::wstring& name) override { name_ = name; }

    IParamSetsCfg* getParamSets() const override {
        return this->template child<INodeCfg::ParamSets>();
    }
    void setParamSets(IParamSetsCfg* paramSets) override {
        this->template setSlot<INodeCfg::ParamSets>(paramSets, L"setParamSets");
    }
    IParamSetsCfg* releaseParamSets() override {
        return this->template releaseSlot<INodeCfg::ParamSets>();
    }
    IParamSetsCfg* replaceParamSets(IParamSetsCfg* paramSets) override {
        return this->template replaceSlot<INodeCfg::ParamSets>(paramSets, L"replaceParamSets");
    }
    // Never answers false: anything but a parameter-set list (null too)
    // reaches setParamSets as null and raises there.
    bool setChild(INodeCfg* child) override {
        setParamSets(nodeCast<IParamSetsCfg>(child));
        return true;
    }

    // Attribute values are written as stored; empty ones are left out.
    bool writeXml(IXmlWriter& out) const override {
        return this->writeElement(out, writtenName(), [this](StartTag& tag) {
            tag.text(L"engineFile", engineFile_).text(L"engineID", engineID_);
        });
    }

protected:
    explicit PlugInNode(INodeCfg* parent) : Children(parent) {}

    // Keeps only "engineFile" and "engineID" (exact names; the last of a
    // repeated one wins) and drops every other attribute.
    PlugInNode(const ElementStart& element, INodeCfg* parent)
        : Children(parent), name_(element.name) {
        forEachAttribute(element, AttributeNaming::Qualified, [&](auto qName, auto value) {
            if (qName == L"engineFile") engineFile_ = value;
            if (qName == L"engineID") engineID_ = value;
        });
    }

    // The note and the text buffer are not copied; the list is deep-copied.
    PlugInNode(const PlugInNode& other)
        : Children(other),
          engineFile_(other.engineFile_),
          engineID_(other.engineID_),
          name_(other.name_) {}

private:
    std::wstring writtenName() const {
        return name_.empty() ? kinds::tag(Derived::kNodeType) : name_;
    }

    std::wstring engineFile_;
    std::wstring engineID_;
    std::wstring name_;
    std::wstring note_;
};

}  // namespace kaz::kazparser
