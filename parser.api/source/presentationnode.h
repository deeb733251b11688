#pragma once

#include <string>

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
// and extra-values children, before the kind's own `Slots`. `Interface` is
// the kind's interface, `Derived` the implementation class, which supplies
//   kNodeType     its node type;
//   tag()         the fixed tag it is written under.
// getName() answers the "name" attribute, not the tag.
template <class Interface, class Derived, class... Slots>
class PresentationNode
    : public FixedChildren<NodeImpl<Interface>, Slot<IFeaturesCfg, INodeCfg::Features>,
                           Slot<IExtraValuesConfigCfg, INodeCfg::ExtraValuesConfig>, Slots...> {
    using Children =
        FixedChildren<NodeImpl<Interface>, Slot<IFeaturesCfg, INodeCfg::Features>,
                      Slot<IExtraValuesConfigCfg, INodeCfg::ExtraValuesConfig>, Slots...>;

public:
    const std::wstring& getName() const override { return name_; }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }

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

    IFeaturesCfg* getFeatures() const override {
        return this->template child<INodeCfg::Features>();
    }
    void setFeatures(IFeaturesCfg* features) override {
        this->template setSlot<INodeCfg::Features>(features, L"setFeatures");
    }
    IFeaturesCfg* replaceFeatures(IFeaturesCfg* features) override {
        return this->template replaceSlot<INodeCfg::Features>(features, L"replaceFeatures");
    }
    IFeaturesCfg* releaseFeatures() override {
        return this->template releaseSlot<INodeCfg::Features>();
    }

    IExtraValuesConfigCfg* getExtraValuesConfig() const override {
        return this->template child<INodeCfg::ExtraValuesConfig>();
    }
    void setExtraValuesConfig(IExtraValuesConfigCfg* extraValues) override {
        this->template setSlot<INodeCfg::ExtraValuesConfig>(extraValues, L"setExtraValuesConfig");
    }
    IExtraValuesConfigCfg* replaceExtraValuesConfig(IExtraValuesConfigCfg* extraValues) override {
        return this->template replaceSlot<INodeCfg::ExtraValuesConfig>(extraValues,
                                                                       L"replaceExtraValuesConfig");
    }
    IExtraValuesConfigCfg* releaseExtraValuesConfig() override {
        return this->template releaseSlot<INodeCfg::ExtraValuesConfig>();
    }

protected:
    explicit PresentationNode(INodeCfg* parent) : Children(parent) {}

    // Reads the shared attributes by local name (the last of a repeated one
    // wins; others are left to the kind), then resolves the display texts.
    PresentationNode(const ElementStart& element, INodeCfg* parent) : Children(parent) {
        forEachAttribute(element, AttributeNaming::Local, [&](auto name, auto value) {
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
        });
        resolveDisplayText(nameStringID_, displayName_);
        resolveDisplayText(descStringID_, displayDesc_);
    }

    PresentationNode(const PresentationNode& other) = default;

    // The shared attributes in their written order; the kind may add its
    // own after them.
    void addSharedAttributes(StartTag& tag) const {
        tag.text(L"name", name_).text(L"nameStringID", nameStringID_);
        tag.text(L"desc", desc_).text(L"descStringID", descStringID_);
        tag.text(L"schemaVersion", schemaVersion_);
        tag.number(L"kaz.DwgSysParam.MeasureScale", measureScale_, hasMeasureScale_);
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
};

}  // namespace kaz::kazparser
