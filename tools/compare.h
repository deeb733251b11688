#pragma once

// The one comparison of two element trees, behind both the loss report (a
// file against what its tree writes) and the diff of two files.

#include <string>
#include <vector>

#include "model.h"

namespace kazcfg {

struct Difference {
    enum class Change { Added, Removed, Changed, Moved };
    enum class Part { Element, Attribute, Text };
    Change change;
    Part part;
    // The element on each side. An added element has no `a` of its own: `a`
    // is its parent in A (null for a root); a removed one likewise has its
    // parent in B as `b`.
    const Element* a;
    const Element* b;
    std::wstring attribute;
    std::wstring before;  // the value in A
    std::wstring after;   // the value in B
};

// Children are matched by key, the n-th of a key in A with the n-th in B;
// attributes by name (their order does not count). Matched children whose
// order differs are reported as moved. The elements must outlive the result.
std::vector<Difference> compare(const Element& a, const Element& b);

enum class Wording { Loss, Diff };

// One line saying what differs: `attribute "k" of <X> will change: "1" ->
// "2"` (Loss: what writing would do) or `... changed: ...` (Diff).
std::string describe(const Difference& difference, Wording wording);

// The element the difference is about (the added one for an added element).
const Element& subjectOf(const Difference& difference);

}  // namespace kazcfg
