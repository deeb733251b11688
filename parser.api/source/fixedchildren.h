#pragma once

#include <array>
#include <cstddef>
#include <tuple>
#include <utility>

#include "childslot.h"
#include "kazparser/INodeCfg.h"
#include "nodecast.h"
#include "nodeerrors.h"
#include "nodekinds.h"

namespace kaz::kazparser {

namespace fixedchildren {

// The present nodes among `slots` are the child positions, in slot order.
template <std::size_t N>
unsigned int presentCount(const std::array<INodeCfg*, N>& slots) {
    unsigned int count = 0;
    for (const INodeCfg* node : slots) count += node != nullptr ? 1u : 0u;
    return count;
}

// The `index`-th present node; an index not below presentCount raises the
// out-of-range error naming `className`::getChild.
template <std::size_t N>
INodeCfg* presentChild(const std::array<INodeCfg*, N>& slots, unsigned int index,
                       const wchar_t* className) {
    unsigned int position = 0;
    for (INodeCfg* node : slots)
        if (node != nullptr && position++ == index) return node;
    errors::indexOutOfRange(index, KAZ_HERE(className, L"getChild"));
}

}  // namespace fixedchildren

// One named child position: at most one node of interface `Child`, taken
// by setChild when a node's type is `Type`.
template <class Child, INodeCfg::NodeType Type>
struct Slot : ChildSlot<Child> {
    using Interface = Child;
    static constexpr INodeCfg::NodeType kType = Type;
};

// The children of a kind that holds them in named slots (`Slots`, in
// getChild order, each a Slot), on top of the kind's `Base`. It gives the
// kind its child operations and deep copy; the kind's typed accessors are
// one line each over child, setSlot, replaceSlot and releaseSlot. Errors
// name the class the table of kinds gives for the node's type.
template <class Base, class... Slots>
class FixedChildren : public Base {
public:
    unsigned int getChildCount() const override { return fixedchildren::presentCount(present()); }
    INodeCfg* getChild(unsigned int index) const override {
        return fixedchildren::presentChild(present(), index, className());
    }
    void deleteChildren() override {
        std::apply([](auto&... slot) { (slot.reset(), ...); }, slots_);
    }
    // A node of a slot's type replaces (deletes) that slot's child; null
    // raises "Invalid argument", a node of any other type is refused.
    bool setChild(INodeCfg* child) override {
        const INodeCfg::NodeType type = required(child, L"setChild")->getNodeType();
        return std::apply([&](auto&... slot) { return (take(slot, type, child) || ...); }, slots_);
    }

protected:
    using Base::Base;
    // Deep-copies every child, each made a child of the copy.
    FixedChildren(const FixedChildren& other) : Base(other) {
        cloneEach(other, std::index_sequence_for<Slots...>{});
    }

    template <INodeCfg::NodeType Type>
    auto& slot() {
        return std::get<indexOf<Type>()>(slots_);
    }
    template <INodeCfg::NodeType Type>
    const auto& slot() const {
        return std::get<indexOf<Type>()>(slots_);
    }
    template <INodeCfg::NodeType Type>
    auto* child() const {
        return slot<Type>().get();
    }
    // Deletes the slot's child and adopts `child`; null raises naming `method`.
    template <INodeCfg::NodeType Type, class Child>
    void setSlot(Child* child, const wchar_t* method) {
        slot<Type>().set(required(child, method), this);
    }
    // Hands back the slot's child detached and takes `child`, re-parented
    // unless `adopt` is false; null raises naming `method`.
    template <INodeCfg::NodeType Type, class Child>
    Child* replaceSlot(Child* child, const wchar_t* method, bool adopt = true) {
        return slot<Type>().replace(required(child, method), adopt ? this : nullptr);
    }
    template <INodeCfg::NodeType Type>
    auto* releaseSlot() {
        return slot<Type>().release();
    }

    const wchar_t* className() const { return kinds::of(this->getNodeType()).className; }

    template <class T>
    T* required(T* child, const wchar_t* method) const {
        return errors::required(child, className(), method);
    }

private:
    template <INodeCfg::NodeType Type>
    static constexpr std::size_t indexOf() {
        constexpr std::array<bool, sizeof...(Slots)> matches{(Slots::kType == Type)...};
        for (std::size_t i = 0; i < matches.size(); ++i)
            if (matches[i]) return i;
        return matches.size();
    }

    std::array<INodeCfg*, sizeof...(Slots)> present() const {
        return std::apply(
            [](const auto&... slot) {
                return std::array<INodeCfg*, sizeof...(Slots)>{slot.get()...};
            },
            slots_);
    }

    template <class S>
    bool take(S& slot, INodeCfg::NodeType type, INodeCfg* child) {
        if (type != S::kType) return false;
        slot.set(required(nodeCast<typename S::Interface>(child), L"setChild"), this);
        return true;
    }

    template <std::size_t... I>
    void cloneEach(const FixedChildren& other, std::index_sequence<I...>) {
        (std::get<I>(slots_).cloneFrom(std::get<I>(other.slots_), this), ...);
    }

    std::tuple<Slots...> slots_;
};

}  // namespace kaz::kazparser
