#pragma once

#include <string>

#include "kazparser/IDataCfg.h"
#include "tableobj/IElement.h"

namespace kaz::kazparser {

// A typed value held as a table object: a boolean, number, text, column,
// table or list of tables. Its element name follows the value's type
// ("UseBoolean", "UseDouble", "UseInteger", "UseString", "UseColumn",
// "UseTable", "UseTables"); without a stored name it is "UseData". It has no
// child nodes: getChild raises the out-of-range error for every index and
// setChild raises the invalid-data error "Do not use this method".
class KAZPARSER_API IUseDataCfg : public IDataCfg {
public:
    // The value (still owned by the node), or null.
    virtual tableobj::IElement* getValue() const = 0;
    // Deletes the held value and takes `value`, naming the element after its
    // type where the type has a name. Null only deletes the held value.
    virtual void setValue(tableobj::IElement* value) = 0;
    // Takes `value` (named as by setValue) and hands back the previous one,
    // or null. A null value, or the held one, raises "Invalid argument".
    virtual tableobj::IElement* replaceValue(tableobj::IElement* value) = 0;
    // Hands back the value, detached, and clears the element name.
    virtual tableobj::IElement* releaseValue() = 0;
    // Typed setters: set the held value when it is of the type, else replace
    // it with a new value of the type.
    virtual void setBool(bool value) = 0;
    virtual void setInt(int value) = 0;
    virtual void setDouble(double value) = 0;
    virtual void setString(const std::wstring& value) = 0;
    virtual void setElementName(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
