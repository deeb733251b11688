#pragma once

#include <cstddef>
#include <new>
#include <typeinfo>

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// dynamic_cast<To*>(node), its answer remembered for the node's class. A
// cast to an interface walks the bases of the node's class, comparing
// their type names; for one class (and the same INodeCfg within it) the
// interface always stands at the same distance from the object's start, so
// each thread walks once per class and target, not once per child attached.
template <class To>
To* nodeCast(INodeCfg* node) {
    if (node == nullptr) return nullptr;
    struct Known {
        const std::type_info* type = nullptr;
        std::ptrdiff_t from = 0;  // the INodeCfg's distance from the start
        std::ptrdiff_t to = 0;    // the interface's
        bool castable = false;
    };
    thread_local Known known;
    char* const start = static_cast<char*>(dynamic_cast<void*>(node));
    const std::type_info* type = &typeid(*node);
    const std::ptrdiff_t from = reinterpret_cast<char*>(node) - start;
    if (known.type != type || known.from != from) {
        To* cast = dynamic_cast<To*>(node);
        known = {type, from, cast != nullptr ? reinterpret_cast<char*>(cast) - start : 0,
                 cast != nullptr};
    }
    return known.castable ? std::launder(reinterpret_cast<To*>(start + known.to)) : nullptr;
}

}  // namespace kaz::kazparser
