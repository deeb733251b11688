#pragma once

#include "elementbase.h"
#include "itemlist.h"
#include "tableobj/ITables.h"

namespace tableobj {

class TablesImpl final : public ItemListImpl<NamedBase<ITables>, ITable> {
public:
    TablesImpl(std::wstring name, std::wstring desc)
        : ItemListImpl(L"tableobj::TablesImpl", std::move(name), std::move(desc)) {}

    ElementType getElementType() const override { return IElement::Tables; }
    IElement* clone() const override { return new TablesImpl(*this); }
    bool equals(const IElement& other) const override;
    bool writeXml(IXmlWriter& out) const override;
};

}  // namespace tableobj
