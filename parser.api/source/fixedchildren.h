#pragma once

#include <array>
#include <cstddef>

#include "childslot.h"
#include "nodeerrors.h"

namespace kaz::kazparser::fixedchildren {

// Steps shared by the kinds whose children sit in named slots. The set and
// replace operations of these kinds refuse null with "Invalid argument"
// naming `className`::`method`.
template <class T>
T* required(T* child, const wchar_t* className, const wchar_t* method) {
    if (child == nullptr) errors::invalidArgument(KAZ_HERE(className, method));
    return child;
}

// Deletes the slot's child and adopts `child`, made a child of `owner`
// unless that is null. Setting the child the slot already holds keeps it:
// deleting it would leave the slot dangling.
template <class T>
void adopt(ChildSlot<T>& slot, T* child, INodeCfg* owner) {
    if (child != slot.get()) {
        slot.set(child, owner);
    } else if (owner != nullptr) {
        child->setParent(owner);
    }
}

// Adopts `child` and hands back the previous child detached. Replacing a
// child by itself hands back nothing, so that no node has two owners.
template <class T>
T* exchange(ChildSlot<T>& slot, T* child, INodeCfg* owner) {
    if (child != slot.get()) return slot.replace(child, owner);
    if (owner != nullptr) child->setParent(owner);
    return nullptr;
}

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

}  // namespace kaz::kazparser::fixedchildren
