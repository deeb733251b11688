#pragma once

#include <cstddef>
#include <string>

#include "tableobj/IElement.h"
#include "tableobj/INamed.h"

namespace tableobj {

// A named column of values of one scalar type. Row indices out of range throw
// an out-of-range exception.
class TABLEOBJ_API IColumn : public IElement, public INamed {
public:
    // The type of the values: Boolean, Double, Integer or String.
    virtual ElementType getDataType() const = 0;
    virtual std::size_t getRowCount() const = 0;

    // A value as text, unescaped, in the form the column writes it.
    virtual std::wstring getValueText(std::size_t row) const = 0;
    // Values read from text: "true" (any case) or "1" is true; numbers as
    // ioutils reads them.
    virtual void setValueText(std::size_t row, const std::wstring& text) = 0;
    virtual void appendValueText(const std::wstring& text) = 0;

    virtual void removeRow(std::size_t row) = 0;
    virtual void clear() = 0;
};

// A column with typed access to its values.
template <class T, IElement::ElementType Type>
class TABLEOBJ_API IColumnOf : public IColumn {
public:
    using ValueType = T;
    static constexpr ElementType kDataType = Type;

    virtual T getValue(std::size_t row) const = 0;
    virtual void setValue(std::size_t row, const T& value) = 0;
    virtual void appendValue(const T& value) = 0;
};

class TABLEOBJ_API IColumnString : public IColumnOf<std::wstring, IElement::String> {};
class TABLEOBJ_API IColumnInt : public IColumnOf<int, IElement::Integer> {};
class TABLEOBJ_API IColumnDouble : public IColumnOf<double, IElement::Double> {};
class TABLEOBJ_API IColumnBool : public IColumnOf<bool, IElement::Boolean> {};

}  // namespace tableobj
