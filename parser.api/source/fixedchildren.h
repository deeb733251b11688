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
