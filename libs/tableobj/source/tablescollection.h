#pragma once

#include "elementbase.h"
#include "itemlist.h"
#include "tableobj/ITablesCollection.h"

namespace tableobj {

class TablesCollectionImpl final : public ItemListImpl<ElementBase<ITablesCollection>, ITables> {
public:
    TablesCollectionImpl() : ItemListImpl(L"tableobj::TablesCollectionImpl") {}

    ElementType getElementType() const override { return IElement::TablesCollection; }
    IElement* clone() const override { return new TablesCollectionImpl(*this); }
    bool equals(const IElement& other) const override;
    bool writeXml(IXmlWriter& out) const override;
};

}  // namespace tableobj
