#pragma once

#include <cstddef>

// Counts the heap of the whole process (the library, libxml2 and the C++
// runtime alike) by standing in for malloc and its relatives, while a
// Counting object lives; otherwise the stand-ins only pass calls on, so
// that the other benchmarks do not pay for the count.
namespace kazbench::heap {

class Counting {
public:
    Counting();
    ~Counting();
    Counting(const Counting&) = delete;
    Counting& operator=(const Counting&) = delete;

    // Bytes allocated and not yet freed since counting began (blocks from
    // before that are freed meanwhile make it smaller).
    long long live() const;
    // The most that was live.
    long long peak() const;
};

}  // namespace kazbench::heap
