#include "tablereader.h"

#include <algorithm>
#include <cwctype>
#include <initializer_list>
#include <memory>
#include <vector>

#include "ioutils/Numbers.h"
#include "markupcapture.h"
#include "nodeerrors.h"
#include "tableobj/TableobjFactory.h"

namespace kaz::kazparser::tablereader {
namespace {

using Node = ContentNode;
using tableobj::IElement;
using tableobj::TableobjFactory;

constexpr const wchar_t* kReader = L"kaz::kazparser::tablereader";

std::wstring attributeOf(const Node& element, const wchar_t* name) {
    return element.attribute(name).value_or(L"");
}

// How messages name an element: its start tag with the name attribute.
std::wstring describe(const Node& element) {
    std::wstring text = L"<" + element.name;
    if (const auto name = element.attribute(L"name")) text += L" name=\"" + *name + L"\"";
    return text + L">";
}

std::wstring quoted(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

bool isBlank(const std::wstring& text) {
    return std::all_of(text.begin(), text.end(),
                       [](wchar_t c) { return std::iswspace(static_cast<wint_t>(c)); });
}

void expectName(const Node& element, const wchar_t* name, const wchar_t* method) {
    if (element.name != name)
        errors::invalidData(describe(element) + L": expected <" + name + L">",
                            KAZ_HERE(kReader, method));
}

// The child elements; text between them may only be blanks (indentation).
std::vector<const Node*> childElements(const Node& element, const wchar_t* method) {
    std::vector<const Node*> elements;
    for (const Node& child : element.children) {
        if (!child.isText()) {
            elements.push_back(&child);
        } else if (!isBlank(child.text)) {
            errors::invalidData(describe(element) + L": unexpected text " + quoted(child.text),
                                KAZ_HERE(kReader, method));
        }
    }
    return elements;
}

// The text of a Row or Property, which holds no element.
std::wstring valueTextOf(const Node& element, const wchar_t* method) {
    if (firstElementChild(element))
        errors::invalidData(describe(element) + L": a value holds no element",
                            KAZ_HERE(kReader, method));
    return element.allText();
}

IElement::ElementType datatypeOf(const Node& element, const wchar_t* method) {
    const std::wstring datatype = attributeOf(element, L"datatype");
    const IElement::ElementType type = TableobjFactory::elementTypeFromDatatype(datatype);
    if (type == IElement::NoValue)
        errors::invalidData(describe(element) + L": unknown datatype " + quoted(datatype),
                            KAZ_HERE(kReader, method));
    return type;
}

std::wstring lowered(std::wstring text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return text;
}

bool isOneOf(const std::wstring& text, std::initializer_list<const wchar_t*> texts) {
    return std::any_of(texts.begin(), texts.end(), [&](const wchar_t* t) { return text == t; });
}

// Whether `text` reads as a value of the scalar `type` without guessing:
// the texts the table objects write, numbers with blanks around them.
bool isValueOf(IElement::ElementType type, const std::wstring& text) {
    int integer = 0;
    double number = 0.0;
    switch (type) {
        case IElement::Boolean:
            return isOneOf(lowered(text), {L"true", L"false", L"1", L"0"});
        case IElement::Integer:
            return ioutils::readInt(text, integer);
        case IElement::Double:
            return ioutils::readDouble(text, number);
        default:
            return true;
    }
}

void checkValue(const Node& owner, IElement::ElementType type, const std::wstring& text,
                const wchar_t* method) {
    if (!isValueOf(type, text))
        errors::invalidData(describe(owner) + L": " + quoted(text) +
                                L" is not a value of datatype " +
                                quoted(TableobjFactory::datatypeFromElementType(type)),
                            KAZ_HERE(kReader, method));
}

void readProperties(const Node& properties, tableobj::ITable& table) {
    for (const auto& property : childElements(properties, L"readTable")) {
        expectName(*property, L"Property", L"readTable");
        const IElement::ElementType type = datatypeOf(*property, L"readTable");
        const std::wstring text = valueTextOf(*property, L"readTable");
        checkValue(*property, type, text, L"readTable");
        const std::wstring name = attributeOf(*property, L"name");
        table.setProperty(name, TableobjFactory::createScalar(type, text));  // owns it at once
    }
}

// Adds a column read from `element`, which must have the table's row count.
void addColumn(tableobj::ITable& table, const Node& tableElement, const Node& element) {
    std::unique_ptr<tableobj::IColumn> column(readColumn(element));
    if (table.getColumns().getCount() > 0 && column->getRowCount() != table.getRowCount())
        errors::invalidData(describe(tableElement) + L": " + describe(element) + L" has " +
                                ioutils::formatInt(static_cast<long long>(column->getRowCount())) +
                                L" Row values, the columns before it " +
                                ioutils::formatInt(static_cast<long long>(table.getRowCount())),
                            KAZ_HERE(kReader, L"readTable"));
    table.getColumns().append(column.release());
}

}  // namespace

const Node* firstElementChild(const Node& element) {
    for (const Node& child : element.children)
        if (!child.isText()) return &child;
    return nullptr;
}

tableobj::IColumn* readColumn(const Node& element) {
    expectName(element, L"Column", L"readColumn");
    const IElement::ElementType type = datatypeOf(element, L"readColumn");
    std::unique_ptr<tableobj::IColumn> column(
        TableobjFactory::createColumn(type, attributeOf(element, L"name")));
    column->setDesc(attributeOf(element, L"desc"));
    for (const auto& row : childElements(element, L"readColumn")) {
        expectName(*row, L"Row", L"readColumn");
        const std::wstring text = valueTextOf(*row, L"readColumn");
        checkValue(element, type, text, L"readColumn");
        column->appendValueText(text);
    }
    return column.release();
}

tableobj::IColumns* readColumns(const Node& element) {
    expectName(element, L"Columns", L"readColumns");
    std::unique_ptr<tableobj::IColumns> columns(TableobjFactory::createColumns());
    for (const auto& column : childElements(element, L"readColumns"))
        columns->append(readColumn(*column));
    return columns.release();
}

tableobj::ITable* readTable(const Node& element) {
    expectName(element, L"Table", L"readTable");
    std::unique_ptr<tableobj::ITable> table(
        TableobjFactory::createTable(attributeOf(element, L"name"), attributeOf(element, L"desc")));
    for (const auto& child : childElements(element, L"readTable")) {
        if (child->name == L"Properties") {
            readProperties(*child, *table);
        } else {
            addColumn(*table, element, *child);
        }
    }
    return table.release();
}

tableobj::ITables* readTables(const Node& element) {
    expectName(element, L"Tables", L"readTables");
    std::unique_ptr<tableobj::ITables> tables(TableobjFactory::createTables(
        attributeOf(element, L"name"), attributeOf(element, L"desc")));
    for (const auto& table : childElements(element, L"readTables"))
        tables->append(readTable(*table));
    return tables.release();
}

tableobj::ITablesCollection* readTablesCollection(const Node& element) {
    expectName(element, L"Tables", L"readTablesCollection");
    std::unique_ptr<tableobj::ITablesCollection> collection(
        TableobjFactory::createTablesCollection());
    for (const auto& tables : childElements(element, L"readTablesCollection"))
        collection->append(readTables(*tables));
    return collection.release();
}

bool holdsTablesLists(const Node& tables) {
    const Node* first = firstElementChild(tables);
    return first != nullptr && first->name == L"Tables";
}

IElement* valueFromText(IElement::ElementType type, const std::wstring& text) {
    switch (type) {
        case IElement::Boolean:
            return TableobjFactory::createBool(text == L"true");
        case IElement::Double:
            return TableobjFactory::createDouble(ioutils::parseDouble(text));
        case IElement::Integer:
            return TableobjFactory::createInt(ioutils::parseInt(text));
        case IElement::String:
            return TableobjFactory::createString(text);
        default:
            return nullptr;
    }
}

std::wstring stringContent(const Node& element) {
    std::wstring text;
    for (const Node& node : leadingContent(element)) {
        if (node.isText())
            text += node.text;
        else
            appendMarkup(text, node);
    }
    return text;
}

IElement* readValue(IElement::ElementType type, const Node& element) {
    switch (type) {
        case IElement::Boolean:
        case IElement::Double:
        case IElement::Integer:
            return valueFromText(type, element.allText());
        case IElement::String:
            return valueFromText(type, stringContent(element));
        default:
            break;
    }
    const Node* first = firstElementChild(element);
    if (first == nullptr) return nullptr;
    switch (type) {
        case IElement::Column:
            return readColumn(*first);
        case IElement::Columns:
            return readColumns(*first);
        case IElement::Table:
            return readTable(*first);
        case IElement::Tables:
            return readTables(*first);
        case IElement::TablesCollection:
            return readTablesCollection(*first);
        default:
            return nullptr;
    }
}

}  // namespace kaz::kazparser::tablereader
