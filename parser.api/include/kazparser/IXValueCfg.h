#pragma once

#include "kazparser/IExtParamCfg.h"

namespace kaz::kazparser {

// An extra value ("XValue"): an extension parameter that can be marked as a
// value of the system.
class KAZPARSER_API IXValueCfg : public IExtParamCfg {
public:
    virtual bool getSystemValue() const = 0;
    virtual void setSystemValue(bool systemValue) = 0;
};

}  // namespace kaz::kazparser
