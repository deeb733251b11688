#pragma once

#include <cstddef>
#include <string>

#include "tableobj/Export.h"

namespace tableobj {

// An ordered list that owns its items. Functions that take an item take its
// ownership in every case: when they throw, the item is freed (unless it
// already is in this list). An item must not be owned by anything else.
// Bad indices throw an out-of-range exception, a null item invalid data.
template <class Item>
class TABLEOBJ_API IItemList {
public:
    virtual ~IItemList() = default;

    virtual std::size_t getCount() const = 0;
    Item* get(std::size_t index) { return itemAt(index); }
    const Item* get(std::size_t index) const { return itemAt(index); }
    // The first item with that name, or null.
    Item* find(const std::wstring& name) { return itemNamed(name); }
    const Item* find(const std::wstring& name) const { return itemNamed(name); }

    virtual void append(Item* item) = 0;
    // Inserts before `index`; `index` may be the count.
    virtual void insert(std::size_t index, Item* item) = 0;
    // Takes the item out of the list and hands it to the caller.
    virtual Item* remove(std::size_t index) = 0;
    // Puts `item` in place of the one at `index`, which is handed back.
    virtual Item* replace(std::size_t index, Item* item) = 0;

protected:
    virtual Item* itemAt(std::size_t index) const = 0;
    virtual Item* itemNamed(const std::wstring& name) const = 0;
};

}  // namespace tableobj
