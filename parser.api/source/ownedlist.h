#pragma once

#include <cstddef>
#include <vector>

#include "childslot.h"

namespace kaz::kazparser {

// An ordered list of owned child nodes of interface `Item`: each item is
// made a child of the owner passed in, deleted with the list, and handed
// back detached when it is taken out. Entries may be null.
template <class Item>
class OwnedList {
public:
    OwnedList() = default;
    OwnedList(const OwnedList&) = delete;
    OwnedList& operator=(const OwnedList&) = delete;
    ~OwnedList() { clear(); }

    std::size_t size() const { return items_.size(); }
    Item* operator[](std::size_t index) const { return items_[index]; }
    const std::vector<Item*>& items() const { return items_; }

    // Should the list fail to grow, `item` stays with the caller.
    void append(Item* item, INodeCfg* owner) {
        makeRoom();
        items_.push_back(adopted(item, owner));
    }

    void insert(std::size_t index, Item* item, INodeCfg* owner) {
        makeRoom();
        items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index), adopted(item, owner));
    }

    // Grows the list ahead of an append or insert, so that these cannot
    // fail once they take the item, nor what the owner does after them.
    void makeRoom() {
        if (items_.size() == items_.capacity())
            items_.reserve(items_.empty() ? 4 : 2 * items_.capacity());
    }

    // Puts `item` at `index` and hands back the item that was there,
    // detached. An item put in its own place stays and nothing is handed
    // back, so that no node has two owners.
    Item* replace(std::size_t index, Item* item, INodeCfg* owner) {
        Item* previous = items_[index];
        items_[index] = adopted(item, owner);
        return previous != item ? adopted(previous, nullptr) : nullptr;
    }

    // As replace, deleting the item that was there.
    void set(std::size_t index, Item* item, INodeCfg* owner) { delete replace(index, item, owner); }

    Item* remove(std::size_t index) {
        Item* item = items_[index];
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        return adopted(item, nullptr);
    }

    void clear() {
        for (Item* item : items_) delete item;
        items_.clear();
    }

    // Appends a deep copy of each of `other`'s items, made a child of
    // `owner`; a null entry stays null, a copy of another kind is dropped.
    // Should a copy fail, what was appended is the list's, freed with it.
    void copyFrom(const OwnedList& other, INodeCfg* owner) {
        items_.reserve(items_.size() + other.size());  // no append below can throw
        for (const Item* item : other.items_) {
            Item* copy = typedClone(item);
            if (item == nullptr || copy != nullptr) append(copy, owner);
        }
    }

private:
    std::vector<Item*> items_;
};

}  // namespace kaz::kazparser
