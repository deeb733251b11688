#include "chunkpool.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>
#include <new>

// Under AddressSanitizer, room not handed out and the room of deleted
// objects are poisoned, so that a use after delete is still caught.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CHUNKPOOL_ASAN
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(CHUNKPOOL_ASAN)
#include <sanitizer/asan_interface.h>
#define CHUNKPOOL_POISON(block, size) ASAN_POISON_MEMORY_REGION(block, size)
#define CHUNKPOOL_UNPOISON(block, size) ASAN_UNPOISON_MEMORY_REGION(block, size)
#define CHUNKPOOL_REDZONE 16  // poisoned room after each object, to catch overflows
#else
#define CHUNKPOOL_POISON(block, size) ((void)(block), (void)(size))
#define CHUNKPOOL_UNPOISON(block, size) ((void)(block), (void)(size))
#define CHUNKPOOL_REDZONE 0
#endif

namespace memobject::chunkpool {
namespace {

// A chunk's size is also its alignment, so that masking a block's address
// finds the chunk it came from.
constexpr std::size_t kChunkSize = 32 * 1024;
constexpr std::size_t kAlignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

// Counts the deletes still to come before the chunk may go. It starts high
// while a thread fills the chunk; when the thread moves on it takes off
// all but the objects it handed out, so that only the deletes of those
// can bring the count to zero, and no count is kept per allocation.
constexpr long kFilling = LONG_MAX / 2;

struct alignas(kAlignment) Chunk {
    explicit Chunk(std::size_t size) : bytes(size) {}
    std::atomic<long> pending{kFilling};
    const std::size_t bytes;
};
constexpr std::size_t kHeader = sizeof(Chunk);
static_assert(kHeader % kAlignment == 0);

// An object's size rounded up to keep the next one aligned.
std::size_t rounded(std::size_t size) {
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

char* room(Chunk* chunk) {
    return reinterpret_cast<char*>(chunk) + kHeader;
}

Chunk* newChunk(std::size_t bytes) noexcept {
    void* memory = ::operator new (bytes, std::align_val_t{kChunkSize}, std::nothrow);
    if (memory == nullptr) return nullptr;
    auto* chunk = new (memory) Chunk(bytes);
    CHUNKPOOL_POISON(room(chunk), bytes - kHeader);
    return chunk;
}

// Takes `deletes` off the chunk's count; whoever brings it to zero frees it.
void release(Chunk* chunk, long deletes) noexcept {
    if (chunk->pending.fetch_sub(deletes, std::memory_order_acq_rel) != deletes) return;
    CHUNKPOOL_UNPOISON(chunk, chunk->bytes);
    chunk->~Chunk();
    ::operator delete (static_cast<void*>(chunk), std::align_val_t{kChunkSize});
}

// The chunk this thread is filling.
class Filling {
public:
    Filling() = default;
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    ~Filling() {
        moveOn(nullptr);
        gone = true;
    }

    // Set once this thread's Filling is destroyed: objects made later (by
    // destructors that run after it) take chunks of their own.
    static thread_local bool gone;

    void* take(std::size_t size) noexcept {
        if (static_cast<std::size_t>(end_ - next_) < size) {
            Chunk* fresh = newChunk(kChunkSize);
            if (fresh == nullptr) return nullptr;
            moveOn(fresh);
        }
        char* block = next_;
        next_ += size;
        ++handedOut_;
        return block;
    }

private:
    void moveOn(Chunk* fresh) noexcept {
        if (chunk_ != nullptr) release(chunk_, kFilling - handedOut_);
        chunk_ = fresh;
        next_ = fresh != nullptr ? room(fresh) : nullptr;
        end_ = fresh != nullptr ? room(fresh) + (kChunkSize - kHeader) : nullptr;
        handedOut_ = 0;
    }

    Chunk* chunk_ = nullptr;
    char* next_ = nullptr;
    char* end_ = nullptr;
    long handedOut_ = 0;
};

thread_local bool Filling::gone = false;
thread_local Filling filling;

}  // namespace

void* allocateAlone(std::size_t size) noexcept {
    Chunk* own = newChunk(kHeader + rounded(std::max<std::size_t>(size, 1)));
    if (own == nullptr) return nullptr;
    own->pending.store(1, std::memory_order_relaxed);  // already full
    CHUNKPOOL_UNPOISON(room(own), size);
    return room(own);
}

void* allocate(std::size_t size) noexcept {
    const std::size_t share = rounded(size + CHUNKPOOL_REDZONE);
    if (size == 0 || share > kChunkSize - kHeader || Filling::gone) return allocateAlone(size);
    void* block = filling.take(share);
    if (block != nullptr) CHUNKPOOL_UNPOISON(block, size);
    return block;
}

void deallocate(void* block, std::size_t size) noexcept {
    CHUNKPOOL_POISON(block, rounded(size));
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    release(reinterpret_cast<Chunk*>(address & ~(kChunkSize - 1)), 1);
}

}  // namespace memobject::chunkpool
