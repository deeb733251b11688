#include "table.h"

#include <algorithm>

#include "errors.h"
#include "ioutils/Numbers.h"
#include "tableobj/TableobjFactory.h"
#include "valuetext.h"
#include "xmlsink.h"

namespace tableobj {
namespace {

using namespace std::string_view_literals;

bool isScalar(const IElement& value) {
    return !datatypeName(value.getElementType()).empty();
}

std::wstring rowCountText(std::size_t rows) {
    return ioutils::formatInt(static_cast<long long>(rows));
}

}  // namespace

void TableColumns::checkItem(const IColumn& column, std::size_t replaced, const wchar_t* op) const {
    for (std::size_t i = 0; i < getCount(); ++i) {
        if (i == replaced) continue;
        const std::size_t rows = get(i)->getRowCount();
        if (column.getRowCount() == rows) return;
        throw invalidData(L"Column \"" + column.getName() + L"\" has " +
                              rowCountText(column.getRowCount()) + L" rows, the table has " +
                              rowCountText(rows),
                          KAZ_CONTEXT(method(op)));
    }
}

TableImpl::TableImpl(const TableImpl& other)
    : MemObject(other), NamedBase(other), columns_(other.columns_) {
    properties_.reserve(other.properties_.size());
    for (const Property& property : other.properties_)
        properties_.push_back({property.name, std::unique_ptr<IElement>(property.value->clone())});
}

std::size_t TableImpl::getRowCount() const {
    return columns_.getCount() == 0 ? 0 : columns_.get(0)->getRowCount();
}

const std::wstring& TableImpl::getPropertyName(std::size_t index) const {
    if (index >= properties_.size())
        throw outOfRange(index, KAZ_CONTEXT(L"tableobj::TableImpl::getPropertyName"));
    return properties_[index].name;
}

const IElement& TableImpl::getPropertyAt(std::size_t index) const {
    if (index >= properties_.size())
        throw outOfRange(index, KAZ_CONTEXT(L"tableobj::TableImpl::getPropertyAt"));
    return *properties_[index].value;
}

std::vector<TableImpl::Property>::const_iterator TableImpl::findProperty(
    const std::wstring& name) const {
    return std::find_if(properties_.begin(), properties_.end(),
                        [&name](const Property& property) { return property.name == name; });
}

const IElement* TableImpl::getProperty(const std::wstring& name) const {
    const auto found = findProperty(name);
    return found == properties_.end() ? nullptr : found->value.get();
}

bool TableImpl::hasProperty(const std::wstring& name) const {
    return findProperty(name) != properties_.end();
}

void TableImpl::setProperty(const std::wstring& name, IElement* value) {
    std::unique_ptr<IElement> owned(value);
    if (value == nullptr || !isScalar(*value))
        throw invalidArgument(KAZ_CONTEXT(L"tableobj::TableImpl::setProperty"));
    const auto found = findProperty(name);
    if (found == properties_.end())
        properties_.push_back({name, std::move(owned)});
    else
        properties_[static_cast<std::size_t>(found - properties_.begin())].value.swap(owned);
}

bool TableImpl::removeProperty(const std::wstring& name) {
    const auto found = findProperty(name);
    if (found == properties_.end()) return false;
    properties_.erase(found);
    return true;
}

bool TableImpl::sameProperties(const ITable& other) const {
    if (other.getPropertyCount() != properties_.size()) return false;
    for (std::size_t i = 0; i < properties_.size(); ++i) {
        if (properties_[i].name != other.getPropertyName(i) ||
            !properties_[i].value->equals(other.getPropertyAt(i)))
            return false;
    }
    return true;
}

bool TableImpl::equals(const IElement& other) const {
    const ITable* same = sameKind(other);
    return same != nullptr && sameNames(*same) && sameProperties(*same) &&
           columns_.equals(same->getColumns());
}

void TableImpl::writeProperties(XmlSink& sink) const {
    if (properties_.empty()) return;
    sink.element(L"Properties"sv, {}, [this](XmlSink& inner) {
        for (const Property& property : properties_) {
            const TagAttributes attributes{
                property.name, {}, datatypeName(property.value->getElementType())};
            inner.element(L"Property"sv, attributes,
                          [&](XmlSink& value) { value.write(*property.value); });
        }
    });
}

bool TableImpl::writeXml(IXmlWriter& out) const {
    return XmlSink(out)
        .element(L"Table"sv, {getName(), getDesc()},
                 [this](XmlSink& sink) {
                     writeProperties(sink);
                     columns_.writeColumns(sink);
                 })
        .result();
}

}  // namespace tableobj
