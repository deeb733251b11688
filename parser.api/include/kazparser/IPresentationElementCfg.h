#pragma once

#include <string>

#include "kazparser/IExtraValuesConfigCfg.h"
#include "kazparser/IFeaturesCfg.h"
#include "kazparser/IInputConfigCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/IOutputConfigCfg.h"

namespace kaz::kazparser {

// One presentable item ("PresentationElement"): a name and a description,
// each literal or resolved through a language string ID, a schema version,
// an optional drawing measure scale, and up to four children. Children in
// getChild order: features, extra values, input configuration, output
// configuration, each when present.
//
// getName() answers the "name" attribute; the element is always written
// under the tag "PresentationElement".
class KAZPARSER_API IPresentationElementCfg : public INodeCfg {
public:
    // Delete the present child of the kind and adopt the argument; null
    // raises "Invalid argument".
    virtual void setFeatures(IFeaturesCfg* features) = 0;
    virtual void setExtraValuesConfig(IExtraValuesConfigCfg* extraValues) = 0;
    virtual void setInputConfig(IInputConfigCfg* input) = 0;
    virtual void setOutputConfig(IOutputConfigCfg* output) = 0;
    // Adopt the argument and hand back the previous child detached (or
    // null); null raises "Invalid argument".
    virtual IFeaturesCfg* replaceFeatures(IFeaturesCfg* features) = 0;
    virtual IExtraValuesConfigCfg* replaceExtraValuesConfig(IExtraValuesConfigCfg* extraValues) = 0;
    virtual IInputConfigCfg* replaceInputConfig(IInputConfigCfg* input) = 0;
    virtual IOutputConfigCfg* replaceOutputConfig(IOutputConfigCfg* output) = 0;
    // Hand back the child detached, or null; the caller owns it.
    virtual IFeaturesCfg* releaseFeatures() = 0;
    virtual IExtraValuesConfigCfg* releaseExtraValuesConfig() = 0;
    virtual IInputConfigCfg* releaseInputConfig() = 0;
    virtual IOutputConfigCfg* releaseOutputConfig() = 0;

    // The texts to show: "name" and "desc", or the working language's text
    // of their string IDs when those resolve. Never written.
    virtual const std::wstring& getDisplayName() const = 0;
    virtual bool setDisplayName(const std::wstring& text) = 0;
    virtual const std::wstring& getDisplayDesc() const = 0;
    virtual bool setDisplayDesc(const std::wstring& text) = 0;
    virtual const std::wstring& getSchemaVersion() const = 0;
    virtual bool setSchemaVersion(const std::wstring& version) = 0;

    virtual IFeaturesCfg* getFeatures() const = 0;
    virtual IExtraValuesConfigCfg* getExtraValuesConfig() const = 0;
    virtual IInputConfigCfg* getInputConfig() const = 0;
    virtual IOutputConfigCfg* getOutputConfig() const = 0;

    // "kaz.DwgSysParam.MeasureScale"; 0.0 until one is read or set.
    virtual bool hasMeasureScale() const = 0;
    virtual double getMeasureScale() const = 0;
    virtual bool setMeasureScale(double scale) = 0;

    // getName() (the "name" attribute) belongs here.
    virtual const std::wstring& getNameStringID() const = 0;
    // Sets the name and the display name.
    virtual void setName(const std::wstring& name) = 0;
    // No lookup is made.
    virtual void setNameStringID(const std::wstring& id) = 0;
    virtual const std::wstring& getDesc() const = 0;
    virtual const std::wstring& getDescStringID() const = 0;
    // Sets the description and the display description.
    virtual void setDesc(const std::wstring& desc) = 0;
    virtual void setDescStringID(const std::wstring& id) = 0;
};

}  // namespace kaz::kazparser
