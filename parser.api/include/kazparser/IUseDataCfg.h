#pragma once

#include <string>

#include "kazparser/IDataCfg.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// A typed value held as a table object: a boolean, number, text, column,
// table or list of tables. Its element name follows the value's type
// ("UseBoolean", "UseDouble", "UseInteger", "UseString", "UseColumn",
// "UseTable", "UseTables"). It has no child nodes.
class KAZPARSER_API IUseDataCfg : public IDataCfg {
public:
    // The value (still owned by the node), or null.
    virtual tableobj::IElement* getValue() const = 0;
    // Deletes the held value, takes `value` and names the element after its type.
    virtual void setValue(tableobj::IElement* value) = 0;
    // Takes `value` and hands back the previous one (null raises "Invalid argument").
    virtual tableobj::IElement* replaceValue(tableobj::IElement* value) = 0;
    // Hands back the value, detached, and clears the element name.
    virtual tableobj::IElement* releaseValue() = 0;
    // Typed setters: make a value of the type when none of that type is held.
    virtual void setBool(bool value) = 0;
    virtual void setInt(int value) = 0;
    virtual void setDouble(double value) = 0;
    virtual void setString(const std::wstring& value) = 0;
    virtual void setElementName(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
