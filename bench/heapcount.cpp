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

std::atomic<std::size_t> liveBytes{0};
std::atomic<std::size_t> peakBytes{0};

void* counted(void* pointer) {
    if (pointer == nullptr) return nullptr;
    const std::size_t now = liveBytes += malloc_usable_size(pointer);
    std::size_t peak = peakBytes.load(std::memory_order_relaxed);
    while (now > peak && !peakBytes.compare_exchange_weak(peak, now)) {
    }
    return pointer;
}

void uncount(void* pointer) {
    if (pointer != nullptr) liveBytes -= malloc_usable_size(pointer);
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

std::size_t live() {
    return liveBytes.load();
}

std::size_t peak() {
    return peakBytes.load();
}

void resetPeak() {
    peakBytes.store(liveBytes.load());
}

}  // namespace kazbench::heap
