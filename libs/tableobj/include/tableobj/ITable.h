#pragma once

#include <cstddef>
#include <string>

#include "tableobj/IColumns.h"
#include "tableobj/IElement.h"
#include "tableobj/INamed.h"

namespace tableobj {

// Named columns of equal length, and properties: named scalar values in order.
class TABLEOBJ_API ITable : public IElement, public INamed {
public:
    // The table's columns. Adding a column whose row count differs from the
    // table's throws invalid data (and frees the column).
    virtual IColumns& getColumns() = 0;
    virtual const IColumns& getColumns() const = 0;
    // The row count of the columns; 0 when there are none.
    virtual std::size_t getRowCount() const = 0;

    virtual std::size_t getPropertyCount() const = 0;
    virtual const std::wstring& getPropertyName(std::size_t index) const = 0;
    virtual const IElement& getPropertyAt(std::size_t index) const = 0;
    // The named property's value, or null.
    virtual const IElement* getProperty(const std::wstring& name) const = 0;
    virtual bool hasProperty(const std::wstring& name) const = 0;
    // Sets a property, replacing the value of one of that name in its place,
    // else appending. Takes ownership of `value`, which must be an IString,
    // IInt, IDouble or IBool; otherwise throws invalid data and frees it.
    virtual void setProperty(const std::wstring& name, IElement* value) = 0;
    // Whether there was one to remove.
    virtual bool removeProperty(const std::wstring& name) = 0;
};

}  // namespace tableobj
