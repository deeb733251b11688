#include "tableobj/TableobjFactory.h"

#include <array>
#include <utility>

#include "column.h"
#include "columns.h"
#include "errors.h"
#include "scalar.h"
#include "table.h"
#include "tables.h"
#include "tablescollection.h"
#include "valuetext.h"

namespace tableobj {
namespace {

constexpr std::array<std::pair<IElement::ElementType, const wchar_t*>, 4> kDatatypes{{
    {IElement::Integer, L"integer"},
    {IElement::Double, L"double"},
    {IElement::Boolean, L"boolean"},
    {IElement::String, L"string"},
}};

template <class Interface>
Interface* scalarFromText(const std::wstring& text) {
    return new ScalarImpl<Interface>(parseValue<typename Interface::ValueType>(text));
}

}  // namespace

IString* TableobjFactory::createString(const std::wstring& value) {
    return new ScalarImpl<IString>(value);
}
IInt* TableobjFactory::createInt(int value) {
    return new ScalarImpl<IInt>(value);
}
IDouble* TableobjFactory::createDouble(double value) {
    return new ScalarImpl<IDouble>(value);
}
IBool* TableobjFactory::createBool(bool value) {
    return new ScalarImpl<IBool>(value);
}

IElement* TableobjFactory::createScalar(IElement::ElementType type, const std::wstring& text) {
    switch (type) {
        case IElement::String:
            return scalarFromText<IString>(text);
        case IElement::Integer:
            return scalarFromText<IInt>(text);
        case IElement::Double:
            return scalarFromText<IDouble>(text);
        case IElement::Boolean:
            return scalarFromText<IBool>(text);
        default:
            throw invalidArgument(KAZ_CONTEXT(L"tableobj::TableobjFactory::createScalar"));
    }
}

IColumnString* TableobjFactory::createColumnString(const std::wstring& name) {
    return new ColumnImpl<IColumnString>(name);
}
IColumnInt* TableobjFactory::createColumnInt(const std::wstring& name) {
    return new ColumnImpl<IColumnInt>(name);
}
IColumnDouble* TableobjFactory::createColumnDouble(const std::wstring& name) {
    return new ColumnImpl<IColumnDouble>(name);
}
IColumnBool* TableobjFactory::createColumnBool(const std::wstring& name) {
    return new ColumnImpl<IColumnBool>(name);
}

IColumn* TableobjFactory::createColumn(IElement::ElementType dataType, const std::wstring& name) {
    switch (dataType) {
        case IElement::String:
            return createColumnString(name);
        case IElement::Integer:
            return createColumnInt(name);
        case IElement::Double:
            return createColumnDouble(name);
        case IElement::Boolean:
            return createColumnBool(name);
        default:
            throw invalidArgument(KAZ_CONTEXT(L"tableobj::TableobjFactory::createColumn"));
    }
}

IColumns* TableobjFactory::createColumns() {
    return new ColumnsImpl();
}

ITable* TableobjFactory::createTable(const std::wstring& name, const std::wstring& desc) {
    return new TableImpl(name, desc);
}

ITables* TableobjFactory::createTables(const std::wstring& name, const std::wstring& desc) {
    return new TablesImpl(name, desc);
}

ITablesCollection* TableobjFactory::createTablesCollection() {
    return new TablesCollectionImpl();
}

IElement::ElementType TableobjFactory::elementTypeFromDatatype(const std::wstring& datatype) {
    for (const auto& [type, text] : kDatatypes)
        if (datatype == text) return type;
    return IElement::NoValue;
}

std::wstring_view datatypeName(IElement::ElementType type) {
    for (const auto& [known, text] : kDatatypes)
        if (type == known) return text;
    return L"";
}

std::wstring TableobjFactory::datatypeFromElementType(IElement::ElementType type) {
    return std::wstring(datatypeName(type));
}

}  // namespace tableobj
