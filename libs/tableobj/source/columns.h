#pragma once

#include "elementbase.h"
#include "itemlist.h"
#include "tableobj/IColumns.h"

namespace tableobj {

class ColumnsImpl : public ItemListImpl<ElementBase<IColumns>, IColumn> {
public:
    ColumnsImpl() : ItemListImpl(L"tableobj::ColumnsImpl") {}

    ElementType getElementType() const override { return IElement::Columns; }
    // A copy is a free-standing list, even of a table's columns.
    IElement* clone() const override { return new ColumnsImpl(*this); }
    bool equals(const IElement& other) const override;
    bool writeXml(IXmlWriter& out) const override;
    // Writes the columns without the enclosing element, as a table does.
    void writeColumns(XmlSink& sink) const { writeItems(sink); }
};

}  // namespace tableobj
