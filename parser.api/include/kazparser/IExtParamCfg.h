#pragma once

#include <string>

#include "kazparser/IDataCfg.h"
#include "kazparser/INodeCfg.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// A named extension parameter ("ExtParam"): a description, a scale flag and
// at most one data child holding its value. Also the base of values
// (IXValueCfg) and parameters (IParamCfg).
class KAZPARSER_API IExtParamCfg : public INodeCfg {
public:
    virtual const std::wstring& getDesc() const = 0;
    virtual void setDesc(const std::wstring& desc) = 0;
    // The data child's value type; NoValue (17) when there is no data child.
    virtual tableobj::IElement::ElementType getDataType() const = 0;
    virtual bool getScaleRelate() const = 0;
    virtual void setScaleRelate(bool scaleRelate) = 0;
    // The data child (still owned by this node), or null.
    virtual IDataCfg* getData() const = 0;
    // Deletes the current data child and takes `data`.
    virtual void setData(IDataCfg* data) = 0;
    // Takes `data` (null raises "Invalid argument") and hands back the
    // previous data child, detached; the caller owns it.
    virtual IDataCfg* replaceData(IDataCfg* data) = 0;
    // Hands back the data child, detached, and leaves none; null when there is none.
    virtual IDataCfg* releaseData() = 0;
    // The "name" attribute. Named apart from getName(), which answers the
    // element name ("ExtParam", "XValue", or a parameter's tag).
    virtual const std::wstring& getParamName() const = 0;
    virtual void setParamName(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
