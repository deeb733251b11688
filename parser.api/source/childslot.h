#pragma once

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// A deep copy of `node` as a `T`; null for no node, and for a copy of
// another kind, which is deleted.
template <class T>
T* typedClone(const T* node) {
    if (node == nullptr) return nullptr;
    INodeCfg* copy = node->clone();
    auto* typed = dynamic_cast<T*>(copy);
    if (typed == nullptr) delete copy;
    return typed;
}

// Makes `child`, when there is one, a child of `owner`; hands it back.
template <class T>
T* adopted(T* child, INodeCfg* owner) {
    if (child != nullptr) child->setParent(owner);
    return child;
}

// One owned child of a fixed-child kind (`T` is the child interface). The
// owner passes itself where the child is to be re-parented.
template <class T>
class ChildSlot {
public:
    ChildSlot() = default;
    ChildSlot(const ChildSlot&) = delete;
    ChildSlot& operator=(const ChildSlot&) = delete;
    ~ChildSlot() { reset(); }

    T* get() const { return child_; }
    explicit operator bool() const { return child_ != nullptr; }

    // Deletes the current child and adopts `child`, made a child of `owner`
    // unless `owner` is null. Setting the child already held keeps it
    // (deleting it would leave the slot dangling).
    void set(T* child, INodeCfg* owner) {
        if (child != child_) reset();
        child_ = owner != nullptr ? adopted(child, owner) : child;
    }

    // Adopts `child` (re-parented to `owner` unless it is null) and hands
    // back the previous child detached. Replacing the child already held by
    // itself hands nothing back, so that no node has two owners.
    T* replace(T* child, INodeCfg* owner) {
        T* previous = child_;
        child_ = owner != nullptr ? adopted(child, owner) : child;
        return previous != child ? adopted(previous, nullptr) : nullptr;
    }

    // Hands back the child detached; null when there is none.
    T* release() {
        T* previous = child_;
        child_ = nullptr;
        return adopted(previous, nullptr);
    }

    void reset() {
        delete child_;
        child_ = nullptr;
    }

    // Makes this slot hold a deep copy of `other`'s child, owned by `owner`.
    void cloneFrom(const ChildSlot& other, INodeCfg* owner) {
        if (T* copy = typedClone(other.child_)) set(copy, owner);
    }

private:
    T* child_ = nullptr;
};

}  // namespace kaz::kazparser
