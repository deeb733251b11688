#pragma once

#include <array>
#include <string>

#include "childslot.h"
#include "displaytext.h"
#include "fixedchildren.h"
#include "ioutils/Numbers.h"
#include "kazparser/IExtraValuesConfigCfg.h"
#include "kazparser/IFeaturesCfg.h"
#include "nodeimpl.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The state and behaviour shared by the presentation element and the
// presentation group: the name and description with their string IDs and
// display texts, the schema version, the measure scale, and the features
// and extra-values children. `Interface` is the kind's interface, `Derived`
// the implementation class, which supplies
//   kClassName    its qualified name, for error contexts;
//   kNodeType     its node type;
//   tag()         the fixed tag it is written under;
//   childSlots()  its children in getChild order, absent ones null.
// getName() answers the "name" attribute, not the tag.
template <class Interface, class Derived>
class PresentationNode : public NodeImpl<Interface> {
public:
    const std::wstring& getName() const override { return name_; }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }
    unsigned int getChildCount() const override {
        return fixedchildren::presentCount(derived().childSlots());
    }
    INodeCfg* getChild(unsigned int index) const override {
        return fixedchildren::presentChild(derived().childSlots(), index, Derived::kClassName);
    }

    const std::wstring& getNameStringID() const override { return nameStringID_; }
    void setNameStringID(const std::wstring& id) override { nameStringID_ = id; }
    const std::wstring& getDesc() const override { return desc_; }
    const std::wstring& getDescStringID() const override { return descStringID_; }
    void setDescStringID(const std::wstring& id) override { descStringID_ = id; }
    const std::wstring& getSchemaVersion() const override { return schemaVersion_; }
    const std::wstring& getDisplayName() const override { return displayName_; }
    bool setDisplayName(const std::wstring& text) override {
        displayName_ = text;
        return true;
    }
    const std::wstring& getDisplayDesc() const override { return displayDesc_; }
    bool setDisplayDesc(const std::wstring& text) override {
        displayDesc_ = text;
        return true;
    }

    bool hasMeasureScale() const override { return hasMeasureScale_; }
    double getMeasureScale() const override { return measureScale_; }
    bool setMeasureScale(double scale) override {
        measureScale_ = scale;
        hasMeasureScale_ = true;
        return true;
    }

    IFeaturesCfg* getFeatures() const override { return features_.get(); }
    void setFeatures(IFeaturesCfg* features) override {
        features_.set(required(features, L"setFeatures"), this);
    }
    IFeaturesCfg* replaceFeatures(IFeaturesCfg* features) override {
        return features_.replace(required(features, L"replaceFeatures"), this);
    }
    IFeaturesCfg* releaseFeatures() override { return features_.release(); }

    IExtraValuesConfigCfg* getExtraValuesConfig() const override { return extraValues_.get(); }
    void setExtraValuesConfig(IExtraValuesConfigCfg* extraValues) override {
        extraValues_.set(required(extraValues, L"setExtraValuesConfig"), this);
    }
    IExtraValuesConfigCfg* replaceExtraValuesConfig(IExtraValuesConfigCfg* extraValues) override {
        return extraValues_.replace(required(extraValues, L"replaceExtraValuesConfig"), this);
    }
    IExtraValuesConfigCfg* releaseExtraValuesConfig() override { return extraValues_.release(); }

protected:
    explicit PresentationNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}

    // Reads the shared attributes by exact name (the last of a repeated one
    // wins; others are left to the kind), then resolves the display texts.
    PresentationNode(const AttributeList& attributes, INodeCfg* parent)
        : NodeImpl<Interface>(parent) {
        for (const auto& [name, value] : attributes) {
            if (name == L"name") {
                name_ = displayName_ = value;
            } else if (name == L"desc") {
                desc_ = displayDesc_ = value;
            } else if (name == L"kaz.DwgSysParam.MeasureScale") {
                // A value that is no number still counts as a scale, of 0.0.
                measureScale_ = ioutils::parseDouble(value);
                hasMeasureScale_ = true;
            } else if (name == L"schemaVersion") {
                schemaVersion_ = value;
            } else if (name == L"nameStringID") {
                nameStringID_ = value;
            } else if (name == L"descStringID") {
                descStringID_ = value;
            }
        }
        resolveDisplayText(nameStringID_, displayName_);
        resolveDisplayText(descStringID_, displayDesc_);
    }

    // Copies every text but the XML buffer; the children are deep-copied.
    PresentationNode(const PresentationNode& other)
        : NodeImpl<Interface>(other),
          nameStringID_(other.nameStringID_),
          descStringID_(other.descStringID_),
          name_(other.name_),
          desc_(other.desc_),
          displayName_(other.displayName_),
          displayDesc_(other.displayDesc_),
          schemaVersion_(other.schemaVersion_),
          measureScale_(other.measureScale_),
          hasMeasureScale_(other.hasMeasureScale_) {
        features_.cloneFrom(other.features_, this);
        extraValues_.cloneFrom(other.extraValues_, this);
    }

    // The start tag with the shared attributes in their written order;
    // the kind may add its own after them.
    StartTag startTag() const {
        StartTag tag(Derived::tag());
        tag.text(L"name", name_).text(L"nameStringID", nameStringID_);
        tag.text(L"desc", desc_).text(L"descStringID", descStringID_);
        tag.text(L"schemaVersion", schemaVersion_);
        tag.number(L"kaz.DwgSysParam.MeasureScale", measureScale_, hasMeasureScale_);
        return tag;
    }

    // Null raises "Invalid argument" naming `method`.
    template <class T>
    static T* required(T* child, const wchar_t* method) {
        return fixedchildren::required(child, Derived::kClassName, method);
    }

    // Hands a child to setFeatures or setExtraValuesConfig by its kind;
    // answers whether it was one of those.
    bool setSharedChild(INodeCfg* child) {
        switch (child->getNodeType()) {
            case INodeCfg::Features:
                setFeatures(dynamic_cast<IFeaturesCfg*>(child));
                return true;
            case INodeCfg::ExtraValuesConfig:
                setExtraValuesConfig(dynamic_cast<IExtraValuesConfigCfg*>(child));
                return true;
            default:
                return false;
        }
    }

    void deleteSharedChildren() {
        features_.reset();
        extraValues_.reset();
    }

    std::wstring nameStringID_;
    std::wstring descStringID_;
    std::wstring name_;
    std::wstring desc_;
    std::wstring displayName_;
    std::wstring displayDesc_;
    std::wstring schemaVersion_;
    double measureScale_ = 0.0;
    bool hasMeasureScale_ = false;
    ChildSlot<IFeaturesCfg> features_;
    ChildSlot<IExtraValuesConfigCfg> extraValues_;

private:
    const Derived& derived() const { return static_cast<const Derived&>(*this); }
};

}  // namespace kaz::kazparser
