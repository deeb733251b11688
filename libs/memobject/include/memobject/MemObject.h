#pragma once

#include <cstddef>
#include <new>

#if defined(_WIN32)
#define MEMOBJECT_API __declspec(dllexport)
#else
#define MEMOBJECT_API __attribute__((visibility("default")))
#endif

// Virtual base of every node and value object. Objects are allocated through
// the class-level operators, which keep a count of live objects so that tests
// and hosts can prove that a tree and everything handed back were freed.
// Their memory comes in chunks from the global allocator, each freed once
// all objects in it are deleted (on any thread).
class MEMOBJECT_API MemObject {
public:
    virtual ~MemObject();

    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    // Objects are aligned for any fundamental type only.
    static void* operator new(std::size_t size, std::align_val_t) = delete;
    static void operator delete(void* p, std::size_t size) noexcept;
    // For a constructor that throws after the nothrow form.
    static void operator delete(void* p, const std::nothrow_t&) noexcept;

    // Number of objects allocated through MemObject and not yet freed.
    static long liveCount() noexcept;

    // Test support: after `allocations` more successful allocations, every
    // further one fails (std::bad_alloc, or null for the nothrow form).
    // A negative value switches the failure mode off.
    static void failAfter(long allocations) noexcept;
    // Test support: while on, each object gets memory of its own from the
    // global allocator instead of a share of a chunk, so that a program
    // replacing that allocator sees, and can fail, every object.
    static void allocateSeparately(bool on) noexcept;

protected:
    MemObject() = default;
    MemObject(const MemObject&) = default;
    MemObject& operator=(const MemObject&) = default;
};
