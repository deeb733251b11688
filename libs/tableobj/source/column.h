#pragma once

#include <vector>

#include "elementbase.h"
#include "errors.h"
#include "valuetext.h"
#include "xmlsink.h"

namespace tableobj {

// The four typed columns; `Interface` is IColumnString, IColumnInt,
// IColumnDouble or IColumnBool.
template <class Interface>
class ColumnImpl final : public NamedBase<Interface> {
public:
    using T = typename Interface::ValueType;

    explicit ColumnImpl(std::wstring name) : NamedBase<Interface>(std::move(name), L"") {}

    IElement::ElementType getElementType() const override { return IElement::Column; }
    IElement::ElementType getDataType() const override { return Interface::kDataType; }
    std::size_t getRowCount() const override { return values_.size(); }

    T getValue(std::size_t row) const override {
        if (row >= values_.size())
            throw outOfRange(row, KAZ_CONTEXT(L"tableobj::ColumnImpl::getValue"));
        return values_[row];
    }
    void setValue(std::size_t row, const T& value) override {
        if (row >= values_.size())
            throw outOfRange(row, KAZ_CONTEXT(L"tableobj::ColumnImpl::setValue"));
        values_[row] = value;
    }
    void appendValue(const T& value) override { values_.push_back(value); }

    std::wstring getValueText(std::size_t row) const override { return valueText(getValue(row)); }
    void setValueText(std::size_t row, const std::wstring& text) override {
        setValue(row, parseValue<T>(text));
    }
    void appendValueText(const std::wstring& text) override { appendValue(parseValue<T>(text)); }

    void removeRow(std::size_t row) override {
        if (row >= values_.size())
            throw outOfRange(row, KAZ_CONTEXT(L"tableobj::ColumnImpl::removeRow"));
        values_.erase(values_.begin() + static_cast<std::ptrdiff_t>(row));
    }
    void clear() override { values_.clear(); }

    IElement* clone() const override { return new ColumnImpl(*this); }
    bool equals(const IElement& other) const override {
        const Interface* same = this->sameKind(other);
        if (same == nullptr || !this->sameNames(*same) || same->getRowCount() != values_.size())
            return false;
        for (std::size_t row = 0; row < values_.size(); ++row) {
            const T value = values_[row];
            if (!sameValue(value, same->getValue(row))) return false;
        }
        return true;
    }
    bool writeXml(IXmlWriter& out) const override {
        using namespace std::string_view_literals;
        const TagAttributes attributes{this->getName(), this->getDesc(),
                                       datatypeName(Interface::kDataType)};
        return XmlSink(out)
            .element(L"Column"sv, attributes,
                     [this](XmlSink& sink) {
                         for (const T& value : values_)
                             sink.build([&](std::wstring& row) {
                                 row += L"<Row>"sv;
                                 appendContent(row, value);
                                 row += L"</Row>"sv;
                             });
                     })
            .result();
    }

private:
    std::vector<T> values_;
};

}  // namespace tableobj
