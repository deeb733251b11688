#pragma once

#include "elementbase.h"
#include "tableobj/IXmlWriter.h"
#include "valuetext.h"

namespace tableobj {

// The four scalar kinds; `Interface` is IString, IInt, IDouble or IBool.
template <class Interface>
class ScalarImpl final : public ElementBase<Interface> {
public:
    using T = typename Interface::ValueType;

    explicit ScalarImpl(T value) : value_(std::move(value)) {}

    IElement::ElementType getElementType() const override { return Interface::kDataType; }
    T getValue() const override { return value_; }
    void setValue(const T& value) override { value_ = value; }

    IElement* clone() const override { return new ScalarImpl(value_); }
    bool equals(const IElement& other) const override {
        const Interface* same = this->sameKind(other);
        return same != nullptr && sameValue(value_, same->getValue());
    }
    bool writeXml(IXmlWriter& out) const override {
        return buildPiece(out, [this](std::wstring& text) { appendContent(text, value_); });
    }

private:
    T value_;
};

}  // namespace tableobj
