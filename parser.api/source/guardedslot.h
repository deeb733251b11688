#pragma once

#include "childslot.h"

namespace kaz::kazparser {

// A child slot for the typed set/replace operations that are handed the
// child the slot already holds: setting it again keeps it (instead of
// deleting it and keeping a dangling pointer), and replacing it by itself
// hands nothing back (instead of handing back a child still held).
template <class T>
class GuardedSlot : public ChildSlot<T> {
public:
    void set(T* child, INodeCfg* owner) {
        if (child == this->get() && child != nullptr) {
            if (owner != nullptr) child->setParent(owner);
            return;
        }
        ChildSlot<T>::set(child, owner);
    }

    T* replace(T* child, INodeCfg* owner) {
        if (child == this->get() && child != nullptr) {
            if (owner != nullptr) child->setParent(owner);
            return nullptr;
        }
        return ChildSlot<T>::replace(child, owner);
    }
};

}  // namespace kaz::kazparser
