#pragma once

#include <string>

#include "tableobj/IElement.h"

namespace tableobj {

// A single value. Written as its text: "true"/"false", the shortest decimal
// that reads back to the same double, a decimal integer, an escaped string.
template <class T, IElement::ElementType Type>
class TABLEOBJ_API IScalar : public IElement {
public:
    using ValueType = T;
    static constexpr ElementType kDataType = Type;

    virtual T getValue() const = 0;
    virtual void setValue(const T& value) = 0;
};

class TABLEOBJ_API IString : public IScalar<std::wstring, IElement::String> {};
class TABLEOBJ_API IInt : public IScalar<int, IElement::Integer> {};
class TABLEOBJ_API IDouble : public IScalar<double, IElement::Double> {};
class TABLEOBJ_API IBool : public IScalar<bool, IElement::Boolean> {};

}  // namespace tableobj
