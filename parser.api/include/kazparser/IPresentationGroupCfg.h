#pragma once

#include <string>

#include "kazparser/IExtraValuesConfigCfg.h"
#include "kazparser/IFeaturesCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/IPresentationElementsCfg.h"

namespace kaz::kazparser {

// The top of a presentation configuration ("PresentationGroup"): a name and
// a description, each literal or resolved through a language string ID, a
// schema version, an optional drawing measure scale, a preview image, and
// up to three children. Children in getChild order: features, extra values,
// the element list, each when present.
//
// getName() answers the "name" attribute; the group is always written
// under the tag "PresentationGroup".
class KAZPARSER_API IPresentationGroupCfg : public INodeCfg {
public:
    virtual IFeaturesCfg* getFeatures() const = 0;
    // Deletes the present child and adopts the argument; null raises
    // "Invalid argument".
    virtual void setFeatures(IFeaturesCfg* features) = 0;
    // Hands back the child detached, or null; the caller owns it.
    virtual IFeaturesCfg* releaseFeatures() = 0;
    // Adopts the argument and hands back the previous child detached (or
    // null); null raises "Invalid argument".
    virtual IFeaturesCfg* replaceFeatures(IFeaturesCfg* features) = 0;
    // As the feature operations, for the extra values and the element list.
    virtual IExtraValuesConfigCfg* getExtraValuesConfig() const = 0;
    virtual void setExtraValuesConfig(IExtraValuesConfigCfg* extraValues) = 0;
    virtual IExtraValuesConfigCfg* releaseExtraValuesConfig() = 0;
    virtual IExtraValuesConfigCfg* replaceExtraValuesConfig(IExtraValuesConfigCfg* extraValues) = 0;
    virtual IPresentationElementsCfg* getPresentationElements() const = 0;
    virtual void setPresentationElements(IPresentationElementsCfg* elements) = 0;
    virtual IPresentationElementsCfg* releasePresentationElements() = 0;
    virtual IPresentationElementsCfg* replacePresentationElements(
        IPresentationElementsCfg* elements) = 0;

    // The texts to show: "name" and "desc", or the working language's text
    // of their string IDs when those resolve. Never written.
    virtual const std::wstring& getDisplayName() const = 0;
    virtual bool setDisplayName(const std::wstring& text) = 0;
    // "kaz.DwgSysParam.MeasureScale"; 0.0 until one is read or set.
    virtual double getMeasureScale() const = 0;
    virtual bool setMeasureScale(double scale) = 0;
    virtual bool hasMeasureScale() const = 0;
    virtual const std::wstring& getDisplayDesc() const = 0;
    virtual bool setDisplayDesc(const std::wstring& text) = 0;
    virtual const std::wstring& getPreviewImg() const = 0;
    virtual bool setPreviewImg(const std::wstring& image) = 0;

    // getName() (the "name" attribute) belongs here.
    virtual const std::wstring& getNameStringID() const = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual const std::wstring& getDescStringID() const = 0;
    virtual const std::wstring& getSchemaVersion() const = 0;
    // The name and the description leave their display texts alone.
    virtual void setName(const std::wstring& name) = 0;
    // No lookup is made.
    virtual void setNameStringID(const std::wstring& id) = 0;
    virtual void setDesc(const std::wstring& desc) = 0;
    virtual void setDescStringID(const std::wstring& id) = 0;
    virtual void setSchemaVersion(const std::wstring& version) = 0;
};

}  // namespace kaz::kazparser
