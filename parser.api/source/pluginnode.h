#pragma once

#include <string>
#include <string_view>

#include "childslot.h"
#include "kazparser/IParamSetsCfg.h"
#include "kazxml/SAX.h"
#include "nodeerrors.h"
#include "nodeimpl.h"
#include "nodekinds.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The state and behaviour shared by the plug-in kinds: engine file and ID,
// a free element name, a note kept in memory only, and the one
// parameter-set child. `Interface` is the kind's interface (an IPlugInCfg),
// `Derived` the implementation class, which supplies
//   kClassName    its qualified name, for error contexts;
//   kNodeType     its node type;
// and clone(), through the copy constructor below.
template <class Interface, class Derived>
class PlugInNode : public NodeImpl<Interface> {
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

    void setParamSets(IParamSetsCfg* paramSets) override {
        if (paramSets == nullptr)
            errors::invalidArgument(KAZ_HERE(Derived::kClassName, L"setParamSets"));
        paramSets_.set(paramSets, this);
    }
    IParamSetsCfg* getParamSets() const override { return paramSets_.get(); }
    IParamSetsCfg* releaseParamSets() override { return paramSets_.release(); }
    IParamSetsCfg* replaceParamSets(IParamSetsCfg* paramSets) override {
        if (paramSets == nullptr)
            errors::invalidArgument(KAZ_HERE(Derived::kClassName, L"replaceParamSets"));
        return paramSets_.replace(paramSets, this);
    }

    unsigned int getChildCount() const override { return paramSets_ ? 1u : 0u; }
    INodeCfg* getChild(unsigned int index) const override {
        if (index >= getChildCount())
            errors::indexOutOfRange(index, KAZ_HERE(Derived::kClassName, L"getChild"));
        return paramSets_.get();
    }
    void deleteChildren() override { paramSets_.reset(); }
    // Never answers false: anything but a parameter-set list (null too)
    // reaches setParamSets as null and raises there.
    bool setChild(INodeCfg* child) override {
        setParamSets(dynamic_cast<IParamSetsCfg*>(child));
        return true;
    }

    // Attribute values are written as stored; empty ones are left out.
    bool writeXml(IXmlWriter& out) const override {
        const std::wstring name = writtenName();
        return this->writeElement(
            out, StartTag(name).text(L"engineFile", engineFile_).text(L"engineID", engineID_).str(),
            name);
    }

protected:
    explicit PlugInNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}

    // Keeps only "engineFile" and "engineID" (exact names; the last of a
    // repeated one wins) and drops every other attribute.
    PlugInNode(const std::wstring& elementName, kaz::xml::ISAXAttributes* attributes,
               INodeCfg* parent)
        : NodeImpl<Interface>(parent), name_(elementName) {
        for (const auto& [qName, value] : readAttributes(attributes)) {
            if (qName == L"engineFile") engineFile_ = value;
            if (qName == L"engineID") engineID_ = value;
        }
    }

    // The note and the text buffer are not copied; the list is deep-copied.
    PlugInNode(const PlugInNode& other)
        : NodeImpl<Interface>(other),
          engineFile_(other.engineFile_),
          engineID_(other.engineID_),
          name_(other.name_) {
        paramSets_.cloneFrom(other.paramSets_, this);
    }

private:
    std::wstring writtenName() const {
        return name_.empty() ? kinds::tag(Derived::kNodeType) : name_;
    }

    std::wstring engineFile_;
    std::wstring engineID_;
    std::wstring name_;
    std::wstring note_;
    // Declared last so that it is destroyed first.
    ChildSlot<IParamSetsCfg> paramSets_;
};

}  // namespace kaz::kazparser
