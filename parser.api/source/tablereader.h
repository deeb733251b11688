#pragma once

#include <string>

#include "markupcapture.h"
#include "tableobj/ITablesCollection.h"

// Reading table objects from the XML that they write (Tables, Table,
// Properties, Property, Columns, Column, Row), and data values from element
// text. A reader that meets anything else raises the invalid-data error
// naming the element and the problem; it never hands back part of an object.
namespace kaz::kazparser::tablereader {

tableobj::IColumn* readColumn(const ContentNode& element);
tableobj::IColumns* readColumns(const ContentNode& element);
tableobj::ITable* readTable(const ContentNode& element);
tableobj::ITables* readTables(const ContentNode& element);
// A Tables element holding Tables elements.
tableobj::ITablesCollection* readTablesCollection(const ContentNode& element);

// Whether a Tables element holds lists of tables (Tables elements) rather
// than tables; the two are written under the same name.
bool holdsTablesLists(const ContentNode& tables);
// The first child that is an element, or null.
const ContentNode* firstElementChild(const ContentNode& element);

// A scalar data value from its element's text: a Boolean is true exactly for
// "true"; numbers by the parseDouble/parseInt rules (0 without a number);
// a String is the text itself. Null for the other types.
tableobj::IElement* valueFromText(tableobj::IElement::ElementType type, const std::wstring& text);
// The text of a String data value: the character data that starts the
// element's content (all of its pieces), or the markup of its first child
// element; empty when it holds neither.
std::wstring stringContent(const ContentNode& element);
// The data value of `type` that `element` holds: scalars from its text
// (valueFromText, a String from stringContent), table objects from its
// first child element; null when there is none.
tableobj::IElement* readValue(tableobj::IElement::ElementType type, const ContentNode& element);

}  // namespace kaz::kazparser::tablereader
