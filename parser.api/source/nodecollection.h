#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "kazparser/INodeCfgCollection.h"
#include "nodecast.h"
#include "nodeerrors.h"
#include "nodeimpl.h"
#include "ownedlist.h"

namespace kaz::kazparser {

// The ordered, owning list shared by every collection kind. `Interface` is
// the kind's interface (an INodeCfgCollection), `Item` the one item
// interface it accepts, `Derived` the implementation class, which names
// itself in error contexts through `Derived::kClassName`.
//
// Kinds with extra rules (a name index, refusing duplicates) override the
// public operations and build them from the protected steps.
template <class Interface, class Item, class Derived>
class NodeCollection : public NodeImpl<Interface> {
public:
    // Typed overloads that kinds declare in their interfaces stay visible.
    using Interface::append;
    using Interface::insert;
    using Interface::operator[];
    using Interface::remove;
    using Interface::replace;

    unsigned int append(INodeCfg* item) override { return appendItem(castItem(item, L"append")); }

    unsigned int insert(INodeCfg* item, unsigned int index) override {
        Item* typed = castItem(item, L"insert");
        checkIndex(index, L"insert");
        insertItem(typed, index);
        return index;
    }

    INodeCfg* operator[](unsigned int index) const override { return getChild(index); }

    INodeCfg* replace(INodeCfg* item, unsigned int index) override {
        Item* typed = castItem(item, L"replace");
        checkIndex(index, L"replace");
        return replaceItem(typed, index);
    }

    INodeCfg* remove(unsigned int index) override {
        checkIndex(index, L"remove");
        return removeItem(index);
    }

    unsigned int getCount() const override { return static_cast<unsigned int>(items_.size()); }
    unsigned int getChildCount() const override { return getCount(); }

    INodeCfg* getChild(unsigned int index) const override {
        checkIndex(index, L"getChild");
        return items_[index];
    }

    bool setChild(INodeCfg* child) override { return this->append(child) != kNoPosition; }

    void deleteChildren() override { items_.clear(); }

    // Collections without attributes: "<name>", the items, "</name>".
    bool writeXml(IXmlWriter& out) const override {
        return this->writeElement(out, this->getName());
    }

protected:
    explicit NodeCollection(INodeCfg* parent) : NodeImpl<Interface>(parent) {}

    // Copies every item in order, each made a child of the copy.
    NodeCollection(const NodeCollection& other) : NodeImpl<Interface>(other) {
        items_.copyFrom(other.items_, this);
    }

    // The item as the accepted interface, or "Invalid argument" naming `method`.
    Item* castItem(INodeCfg* item, const wchar_t* method) const {
        return errors::required(nodeCast<Item>(item), Derived::kClassName, method);
    }

    void checkIndex(unsigned int index, const wchar_t* method) const {
        if (index >= items_.size())
            errors::indexOutOfRange(index, KAZ_HERE(Derived::kClassName, method));
    }

    unsigned int appendItem(Item* item) {
        items_.append(item, this);
        return getCount();
    }
    void insertItem(Item* item, unsigned int index) { items_.insert(index, item, this); }
    // Grows the list ahead of an append or insert, which then cannot fail.
    void makeRoom() { items_.makeRoom(); }

    // Replaces `index` by the collection's freshIndex() after a change to
    // the list; should that fail, `undo` takes the change back, so that the
    // list, its index and the caller's ownership of the item stay as they
    // were. The fresh index is moved in, so the old one stays whole until then.
    template <class Index, class Undo>
    void reindex(Index& index, Undo undo) {
        try {
            index = static_cast<const Derived*>(this)->freshIndex();
        } catch (...) {
            undo();
            throw;
        }
    }
    // Null when `item` is already at `index`.
    Item* replaceItem(Item* item, unsigned int index) { return items_.replace(index, item, this); }
    Item* removeItem(unsigned int index) { return items_.remove(index); }
    // As replaceItem, deleting the item that was there.
    void setItem(Item* item, unsigned int index) { items_.set(index, item, this); }

    // Typed companions of the list operations: a null item is refused with
    // kNoPosition instead of an error; the erasing forms delete the item
    // they take out.
    unsigned int appendTyped(Item* item) {
        return item != nullptr ? appendItem(item) : kNoPosition;
    }
    Item* typedChild(unsigned int index) const {
        checkIndex(index, L"getChild");
        return items_[index];
    }
    bool eraseItem(unsigned int index) {
        delete this->remove(index);
        return true;
    }
    bool replaceAndDelete(Item* item, unsigned int index) {
        delete this->replace(item, index);
        return true;
    }

    // The position of the last item whose getName() is `name`, or kNoPosition.
    unsigned int lastPositionOf(const std::wstring& name) const {
        unsigned int found = kNoPosition;
        for (std::size_t i = 0; i < items_.size(); ++i)
            if (items_[i]->getName() == name) found = static_cast<unsigned int>(i);
        return found;
    }

    const std::vector<Item*>& items() const { return items_.items(); }

private:
    OwnedList<Item> items_;
};

}  // namespace kaz::kazparser
