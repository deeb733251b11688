#pragma once

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

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
        child_ = child;
        if (child_ != nullptr && owner != nullptr) child_->setParent(owner);
    }

    // Adopts `child` (re-parented to `owner` unless it is null) and hands
    // back the previous child detached. Replacing the child already held by
    // itself hands nothing back, so that no node has two owners.
    T* replace(T* child, INodeCfg* owner) {
        if (child != nullptr && child == child_) {
            if (owner != nullptr) child->setParent(owner);
            return nullptr;
        }
        T* previous = child_;
        child_ = child;
        if (child_ != nullptr && owner != nullptr) child_->setParent(owner);
        return detach(previous);
    }

    // Hands back the child detached; null when there is none.
    T* release() {
        T* previous = child_;
        child_ = nullptr;
        return detach(previous);
    }

    void reset() {
        delete child_;
        child_ = nullptr;
    }

    // Makes this slot hold a deep copy of `other`'s child, owned by `owner`.
    void cloneFrom(const ChildSlot& other, INodeCfg* owner) {
        if (other.child_ == nullptr) return;
        INodeCfg* copy = other.child_->clone();
        T* typed = dynamic_cast<T*>(copy);
        if (typed == nullptr) {  // a clone of another kind cannot fill the slot
            delete copy;
            return;
        }
        set(typed, owner);
    }

private:
    static T* detach(T* child) {
        if (child != nullptr) child->setParent(nullptr);
        return child;
    }

    T* child_ = nullptr;
};

}  // namespace kaz::kazparser
