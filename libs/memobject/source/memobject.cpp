#include "memobject/MemObject.h"

#include <atomic>

#include "chunkpool.h"

namespace {
std::atomic<long> live{0};
std::atomic<long> allocationsLeft{-1};
std::atomic<bool> separately{false};

// Takes one allocation from the failure budget; false when it is used up.
bool allocationAllowed() noexcept {
    long left = allocationsLeft.load();
    while (left >= 0) {
        if (left == 0) return false;
        if (allocationsLeft.compare_exchange_weak(left, left - 1)) return true;
    }
    return true;
}
}  // namespace

MemObject::~MemObject() = default;

void* MemObject::operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (!allocationAllowed()) return nullptr;
    void* p = separately.load(std::memory_order_relaxed) ? memobject::chunkpool::allocateAlone(size)
                                                         : memobject::chunkpool::allocate(size);
    if (p != nullptr) ++live;
    return p;
}

void* MemObject::operator new(std::size_t size) {
    void* p = operator new(size, std::nothrow);
    if (p == nullptr) throw std::bad_alloc();
    return p;
}

void MemObject::operator delete(void* p, std::size_t size) noexcept {
    if (p == nullptr) return;
    --live;
    memobject::chunkpool::deallocate(p, size);
}

void MemObject::operator delete(void* p, const std::nothrow_t&) noexcept {
    operator delete(p, 0);
}

long MemObject::liveCount() noexcept {
    return live.load();
}

void MemObject::failAfter(long allocations) noexcept {
    allocationsLeft.store(allocations);
}

void MemObject::allocateSeparately(bool on) noexcept {
    separately.store(on);
}
