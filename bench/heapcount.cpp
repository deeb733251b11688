#include "heapcount.h"

#include <malloc.h>

#include <atomic>

// glibc's own entry points, which the stand-ins below pass every call to.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pointer, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* pointer);
}

namespace {

std::atomic<bool> counting{false};
std::atomic<long long> liveBytes{0};
std::atomic<long long> peakBytes{0};

long long sizeOf(void* pointer) {
    return static_cast<long long>(malloc_usable_size(pointer));
}

void* counted(void* pointer) {
    if (pointer == nullptr || !counting.load(std::memory_order_relaxed)) return pointer;
    const long long now = liveBytes += sizeOf(pointer);
    long long peak = peakBytes.load(std::memory_order_relaxed);
    while (now > peak && !peakBytes.compare_exchange_weak(peak, now)) {
    }
    return pointer;
}

void uncount(void* pointer) {
    if (pointer != nullptr && counting.load(std::memory_order_relaxed))
        liveBytes -= sizeOf(pointer);
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) {
    return counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size) {
    return counted(__libc_calloc(count, size));
}

void* realloc(void* pointer, std::size_t size) {
    uncount(pointer);
    void* moved = __libc_realloc(pointer, size);
    if (moved == nullptr && size != 0) {  // the old block stays
        counted(pointer);
        return nullptr;
    }
    return counted(moved);
}

void* memalign(std::size_t alignment, std::size_t size) {
    return counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return counted(__libc_memalign(alignment, size));
}

int posix_memalign(void** out, std::size_t alignment, std::size_t size) {
    void* pointer = counted(__libc_memalign(alignment, size));
    if (pointer == nullptr) return 12;  // ENOMEM
    *out = pointer;
    return 0;
}

void free(void* pointer) {
    uncount(pointer);
    __libc_free(pointer);
}

}  // extern "C"

namespace kazbench::heap {

Counting::Counting() {
    liveBytes = 0;
    peakBytes = 0;
    counting = true;
}

Counting::~Counting() {
    counting = false;
}

long long Counting::live() const {
    return liveBytes.load();
}

long long Counting::peak() const {
    return peakBytes.load();
}

}  // namespace kazbench::heap
