// Every allocation can fail: this program replaces the global allocator
// and libxml2's, so that the Nth allocation of any kind fails (nodes, which
// otherwise share chunks, each come from the global allocator here). For N = 0,
// 1, 2, ... until a run completes, each example is built, copied, written
// and its references resolved; every failure must reach the caller as an
// error (thrown, or shown as the reader's failures are), free all it made,
// and leave no trace in what a later run sees.
#include <libxml/xmlmemory.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "testsupport.h"

namespace {

// Allocations left before the one that fails; negative: none fails. Only
// that one fails, so that a failure absorbed on the way shows in the result.
std::atomic<long> allocationsLeft{-1};
std::atomic<bool> failed{false};

bool allocationAllowed() noexcept {
    const long left = allocationsLeft.fetch_sub(1);
    if (left != 0) return true;
    failed = true;
    return false;
}

void* allocate(std::size_t size) noexcept {
    return allocationAllowed() ? std::malloc(size == 0 ? 1 : size) : nullptr;
}

// Out of line, so that the compiler does not match the replaced operators'
// free against their new.
[[gnu::noinline]] void deallocate(void* p) noexcept {
    std::free(p);
}

void* xmlAllocate(std::size_t size) {
    return allocate(size);
}
void* xmlReallocate(void* p, std::size_t size) {
    return allocationAllowed() ? std::realloc(p, size == 0 ? 1 : size) : nullptr;
}
char* xmlDuplicate(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    void* copy = allocate(size);
    return copy == nullptr ? nullptr : static_cast<char*>(std::memcpy(copy, text, size));
}

// Before libxml2 is first used.
const bool xmlAllocatorInstalled =
    xmlMemSetup(std::free, xmlAllocate, xmlReallocate, xmlDuplicate) == 0;

}  // namespace

void* operator new(std::size_t size) {
    if (void* p = allocate(size)) return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    const auto align = static_cast<std::size_t>(alignment);
    return allocationAllowed() ? std::aligned_alloc(align, (size + align - 1) / align * align)
                               : nullptr;
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    if (void* p = operator new(size, alignment, std::nothrow)) return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return operator new(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return operator new(size, alignment, std::nothrow);
}
void operator delete(void* p, std::align_val_t) noexcept {
    deallocate(p);
}
void operator delete(void* p, std::size_t, std::align_val_t) noexcept {
    deallocate(p);
}
void operator delete(void* p, std::align_val_t, const std::nothrow_t&) noexcept {
    deallocate(p);
}
void operator delete[](void* p, std::align_val_t) noexcept {
    deallocate(p);
}
void operator delete[](void* p, std::size_t, std::align_val_t) noexcept {
    deallocate(p);
}
void operator delete(void* p) noexcept {
    deallocate(p);
}
void operator delete[](void* p) noexcept {
    deallocate(p);
}
void operator delete(void* p, std::size_t) noexcept {
    deallocate(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    deallocate(p);
}

namespace {

using namespace kaztest;

// Collects what a node writes, piece by piece (the path of writers that
// offer no buffer).
class PiecesWriter final : public tableobj::IXmlWriter {
public:
    bool write(std::wstring piece) override {
        text += piece;
        return true;
    }
    std::wstring text;
};

// Builds `text` as typed and as generic nodes, copies the typed tree,
// writes all three and resolves the copy's file references; answers all it
// saw, in one string.
std::wstring buildCopyWriteResolve(const std::wstring& text) {
    NodePtr<> tree(KAZConfigFactory::createNodeCfg(&text, nullptr));
    if (tree == nullptr) return L"(null)";
    NodePtr<> copy(tree->clone());
    PiecesWriter written;
    tree->writeXml(written);
    NodePtr<> generic(KAZConfigFactory::createXNodeCfg(&text, nullptr));
    std::wstring seen = written.text + L'\n' + copy->toXml() + L'\n' + generic->toXml();
    if (auto* group = dynamic_cast<IPresentationGroupCfg*>(copy.get())) {
        const unsigned int resolved = group->getPresentationElements()->resolveReferences();
        seen += L'\n' + std::to_wstring(resolved) + L'\n' + copy->toXml();
    }
    return seen;
}

// The outcome of one run with the Nth allocation failing: what it saw, and
// whether a failure was injected and whether it reached the caller.
struct Outcome {
    std::wstring seen;
    bool injected = false;
    bool reported = false;
};

Outcome runFailingAt(long allocation, const std::wstring& text) {
    Outcome run;
    const MessageCapture shown;
    failed = false;
    allocationsLeft = allocation;
    try {
        run.seen = buildCopyWriteResolve(text);
    } catch (const std::bad_alloc&) {
        run.reported = true;
    } catch (kazexception::IKAZException* e) {
        e->release();
        run.reported = true;
    }
    allocationsLeft = -1;
    run.injected = failed;
    run.reported = run.reported || !shown.messages().empty();
    return run;
}

class AllocationFailureTest : public ExamplesRootTest,
                              public ::testing::WithParamInterface<const char*> {};

// Each failing allocation is reported (a run that absorbed one must see
// exactly what a run without failures sees), and frees what it made.
TEST_P(AllocationFailureTest, EveryFailingAllocationIsReportedAndFreesAllItMade) {
    ASSERT_TRUE(xmlAllocatorInstalled);
    // Each node from the global allocator, so that each can fail.
    struct SeparateNodes {
        SeparateNodes() { MemObject::allocateSeparately(true); }
        ~SeparateNodes() { MemObject::allocateSeparately(false); }
    } separateNodes;
    const std::wstring text = readFile(examplesDirectory() / GetParam());
    const std::wstring expected = buildCopyWriteResolve(text);
    ASSERT_NE(expected, L"(null)");
    long points = 0;
    for (;; ++points) {
        const long live = MemObject::liveCount();
        const Outcome run = runFailingAt(points, text);
        ASSERT_EQ(MemObject::liveCount(), live)
            << "objects leaked when allocation " << points << " failed";
        if (!run.injected) {
            ASSERT_EQ(run.seen, expected) << "without failures";
            break;
        }
        if (!run.reported) {
            ASSERT_EQ(run.seen, expected) << "allocation " << points << " failed unnoticed";
        }
    }
    EXPECT_EQ(buildCopyWriteResolve(text), expected) << "after " << points << " failures";
    RecordProperty("allocations", static_cast<int>(points));
    std::printf("%s: %ld allocation points\n", GetParam(), points);
}

INSTANTIATE_TEST_SUITE_P(Examples, AllocationFailureTest,
                         ::testing::Values("label-presentation.xml", "table-presentation.xml",
                                           "water-network.xml", "elements/pipes.xml",
                                           "elements/valves.xml"));

}  // namespace
