#include "usedatacfgimpl.h"

#include "nodekinds.h"

#include <array>
#include <utility>

#include "tableobj/TableobjFactory.h"

namespace kaz::kazparser {
namespace {

using tableobj::IElement;

constexpr std::array<std::pair<IElement::ElementType, const wchar_t*>, 7> kElementNames{{
    {IElement::Boolean, L"UseBoolean"},
    {IElement::Double, L"UseDouble"},
    {IElement::Integer, L"UseInteger"},
    {IElement::String, L"UseString"},
    {IElement::Column, L"UseColumn"},
    {IElement::Table, L"UseTable"},
    {IElement::Tables, L"UseTables"},
}};

}  // namespace

UseDataCfgImpl::UseDataCfgImpl(INodeCfg* parent) : LeafNode(parent) {}

UseDataCfgImpl::UseDataCfgImpl(const ElementStart& element, INodeCfg* parent)
    : LeafNode(parent), name_(element.name) {}

UseDataCfgImpl::UseDataCfgImpl(const UseDataCfgImpl& other)
    : MemObject(other),
      LeafNode(other),
      name_(other.name_),
      value_(other.value_ ? other.value_->clone() : nullptr) {}

const std::wstring& UseDataCfgImpl::getName() const {
    const std::wstring& defaultName = kinds::tag(INodeCfg::UseData);
    return name_.empty() ? defaultName : name_;
}

INodeCfg* UseDataCfgImpl::clone() const {
    return new UseDataCfgImpl(*this);
}

bool UseDataCfgImpl::writeXml(IXmlWriter& out) const {
    return kazparser::writeElement(out, getName(), NoAttributes{}, [this](IXmlWriter& to) {
        if (value_) value_->writeXml(to);
    });
}

bool UseDataCfgImpl::setChild(INodeCfg*) {
    errors::invalidData(L"Do not use this method", KAZ_HERE(kClassName, L"setChild"));
}

IElement::ElementType UseDataCfgImpl::getDataType() const {
    return value_ ? value_->getElementType() : IElement::NoValue;
}

const wchar_t* UseDataCfgImpl::elementNameOf(IElement::ElementType type) {
    for (const auto& [known, name] : kElementNames)
        if (known == type) return name;
    return L"";
}

IElement::ElementType UseDataCfgImpl::typeOfElement(std::wstring_view name) {
    for (const auto& [type, known] : kElementNames)
        if (name == known) return type;
    return IElement::NoValue;
}

void UseDataCfgImpl::nameAfter(const IElement& value) {
    const wchar_t* name = elementNameOf(value.getElementType());
    if (*name != L'\0') name_ = name;
}

void UseDataCfgImpl::setValue(IElement* value) {
    if (value == value_.get()) return;
    value_.reset(value);
    if (value_) nameAfter(*value_);
}

IElement* UseDataCfgImpl::replaceValue(IElement* value) {
    if (value == nullptr || value == value_.get())
        errors::invalidArgument(KAZ_HERE(kClassName, L"replaceValue"));
    IElement* previous = value_.release();
    value_.reset(value);
    nameAfter(*value_);
    return previous;
}

IElement* UseDataCfgImpl::releaseValue() {
    name_.clear();
    return value_.release();
}

template <class Scalar, class Make>
void UseDataCfgImpl::assign(const typename Scalar::ValueType& value, Make make) {
    if (auto* held = dynamic_cast<Scalar*>(value_.get())) {
        held->setValue(value);
    } else {
        setValue(make(value));
    }
}

void UseDataCfgImpl::setBool(bool value) {
    assign<tableobj::IBool>(value, tableobj::TableobjFactory::createBool);
}

void UseDataCfgImpl::setInt(int value) {
    assign<tableobj::IInt>(value, tableobj::TableobjFactory::createInt);
}

void UseDataCfgImpl::setDouble(double value) {
    assign<tableobj::IDouble>(value, tableobj::TableobjFactory::createDouble);
}

void UseDataCfgImpl::setString(const std::wstring& value) {
    assign<tableobj::IString>(value, tableobj::TableobjFactory::createString);
}

}  // namespace kaz::kazparser
