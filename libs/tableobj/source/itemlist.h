#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "errors.h"
#include "tableobj/IItemList.h"
#include "xmlsink.h"

namespace tableobj {

// An owning list of `Item`s implementing IItemList on top of `Base`, an
// ElementBase or NamedBase of the list's interface.
template <class Base, class Item>
class ItemListImpl : public Base {
public:
    std::size_t getCount() const override { return items_.size(); }
    void append(Item* item) override { insertAt(items_.size(), item, L"append"); }
    void insert(std::size_t index, Item* item) override { insertAt(index, item, L"insert"); }

    Item* remove(std::size_t index) override {
        if (index >= items_.size()) throw outOfRange(index, KAZ_CONTEXT(method(L"remove")));
        Item* item = items_[index].release();
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        return item;
    }

    Item* replace(std::size_t index, Item* item) override {
        std::unique_ptr<Item> owned = adopt(item, L"replace");
        if (index >= items_.size()) throw outOfRange(index, KAZ_CONTEXT(method(L"replace")));
        checkItem(*item, index, L"replace");
        owned.swap(items_[index]);
        return owned.release();
    }

protected:
    template <class... BaseArgs>
    explicit ItemListImpl(const wchar_t* className, BaseArgs&&... baseArgs)
        : Base(std::forward<BaseArgs>(baseArgs)...), className_(className) {}

    // A deep copy: every item is cloned.
    ItemListImpl(const ItemListImpl& other) : Base(other), className_(other.className_) {
        items_.reserve(other.items_.size());
        for (const auto& item : other.items_)
            items_.emplace_back(static_cast<Item*>(item->clone()));
    }

    Item* itemAt(std::size_t index) const override {
        if (index >= items_.size()) throw outOfRange(index, KAZ_CONTEXT(method(L"get")));
        return items_[index].get();
    }

    Item* itemNamed(const std::wstring& name) const override {
        for (const auto& item : items_)
            if (item->getName() == name) return item.get();
        return nullptr;
    }

    // Throws when `item` may not be added at `index`; `replaced` is the index
    // of the item it replaces, or npos. `op` names the calling operation.
    virtual void checkItem(const Item& /*item*/, std::size_t /*replaced*/,
                           const wchar_t* /*op*/) const {}

    bool sameItems(const IItemList<Item>& other) const {
        if (other.getCount() != items_.size()) return false;
        for (std::size_t i = 0; i < items_.size(); ++i)
            if (!items_[i]->equals(*other.get(i))) return false;
        return true;
    }

    void writeItems(XmlSink& sink) const {
        for (const auto& item : items_) sink.write(*item);
    }

    // The list as the element `element` around its items.
    bool writeList(IXmlWriter& out, std::wstring_view element,
                   const TagAttributes& attributes) const {
        return XmlSink(out)
            .element(element, attributes, [this](XmlSink& sink) { writeItems(sink); })
            .result();
    }

    // The qualified name of operation `op`, for exception contexts.
    std::wstring method(const wchar_t* op) const { return std::wstring(className_) + L"::" + op; }

private:
    // Owns `item` from here on; refuses null and items already in the list
    // (which stay where they are).
    std::unique_ptr<Item> adopt(Item* item, const wchar_t* op) const {
        std::unique_ptr<Item> owned(item);
        if (item == nullptr) throw invalidArgument(KAZ_CONTEXT(method(op)));
        for (const auto& present : items_) {
            if (present.get() == item) {
                owned.release();
                throw invalidArgument(KAZ_CONTEXT(method(op)));
            }
        }
        return owned;
    }

    void insertAt(std::size_t index, Item* item, const wchar_t* op) {
        std::unique_ptr<Item> owned = adopt(item, op);
        if (index > items_.size()) throw outOfRange(index, KAZ_CONTEXT(method(op)));
        checkItem(*item, std::wstring::npos, op);
        items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index), std::move(owned));
    }

    const wchar_t* className_;
    std::vector<std::unique_ptr<Item>> items_;
};

}  // namespace tableobj
