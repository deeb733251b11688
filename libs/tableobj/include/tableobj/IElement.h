#pragma once

#include "memobject/MemObject.h"
#include "tableobj/Export.h"
#include "tableobj/IXmlOut.h"

namespace tableobj {

// A table object: a scalar, a column, a table or a list of them. Owned through
// a pointer and freed with delete.
class TABLEOBJ_API IElement : public virtual MemObject, public IXmlOut {
public:
    // Kinds of element. The values are persisted by hosts: never renumber.
    enum ElementType {
        Boolean = 0,
        Double = 1,
        Integer = 2,
        String = 3,
        Column = 4,
        Columns = 5,
        Table = 8,
        Tables = 9,
        TablesCollection = 10,
        NoValue = 17  // answered by holders that have no value
    };

    virtual ElementType getElementType() const = 0;
    // A deep copy; the caller owns it.
    virtual IElement* clone() const = 0;
    // Whether `other` is of the same kind and holds the same value, deeply.
    virtual bool equals(const IElement& other) const = 0;
};

}  // namespace tableobj
