#pragma once

#include <string>

#include "kazparser/IXValueCfg.h"

namespace kaz::kazparser {

// A parameter of a parameter set. Its name is its element name: getName(),
// getParamName() and both setters work on the same text, which starts as
// "Param". Attributes the parameter does not know are kept in order as
// extra attributes.
class KAZPARSER_API IParamCfg : public IXValueCfg {
public:
    virtual const std::wstring& getTransformCode() const = 0;
    virtual void setTransformCode(const std::wstring& transformCode) = 0;
    virtual bool getShiftScaleRelate() const = 0;
    virtual void setShiftScaleRelate(bool shiftScaleRelate) = 0;
    // Written only when its absolute value is above 0.0001.
    virtual double getShift() const = 0;
    virtual void setShift(double shift) = 0;
    // Sets the element name (the same text as setParamName).
    virtual void setName(const std::wstring& name) = 0;

    // Extra attributes by position (an index not below the count raises the
    // out-of-range error) and by name (an unknown name raises the
    // out-of-range error "<name> is not the name of child object").
    virtual const std::wstring& getAttribute(unsigned int index) const = 0;
    virtual const std::wstring& getAttribute(const std::wstring& name) const = 0;
    virtual void setAttribute(unsigned int index, const std::wstring& value) = 0;
    // Replaces the value of a known name, or adds the name at the end.
    virtual void setAttribute(const std::wstring& name, const std::wstring& value) = 0;
    virtual bool hasAttribute(const std::wstring& name) const = 0;
    virtual unsigned int getAttributeCount() const = 0;
};

}  // namespace kaz::kazparser
