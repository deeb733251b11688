#pragma once

#include <string>

#include "kazparser/INodeCfgCollection.h"
#include "kazparser/IXValueCfg.h"

namespace kaz::kazparser {

// The extra values of a presentation element or group
// ("ExtraValuesConfig"): a list of values in document order. Values are
// found by their "name" (getParamName); when two share a name the later one
// is found.
class KAZPARSER_API IExtraValuesConfigCfg : public INodeCfgCollection {
public:
    virtual bool hasXValue(const std::wstring& name) const = 0;
    // The value at `index`; errors as getChild.
    virtual IXValueCfg* getXValue(unsigned int index) const = 0;
    // The last value of that name; none raises the out-of-range error
    // "<name> is not the name of child object".
    virtual IXValueCfg* getXValue(const std::wstring& name) const = 0;
};

}  // namespace kaz::kazparser
