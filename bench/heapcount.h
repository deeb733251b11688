#pragma once

#include <cstddef>

// Counts the heap of the whole process (the library, libxml2 and the C++
// runtime alike) by standing in for malloc and its relatives.
namespace kazbench::heap {

// Bytes allocated and not yet freed.
std::size_t live();
// The most that was live since the last resetPeak().
std::size_t peak();
void resetPeak();

}  // namespace kazbench::heap
