#include "compare.h"

#include <algorithm>
#include <map>
#include <optional>

#include "input.h"
#include "problems.h"

namespace kazcfg {

namespace {

using Change = Difference::Change;
using Part = Difference::Part;

const std::wstring* valueOf(const Attributes& attributes, const std::wstring& name) {
    for (const auto& [key, value] : attributes)
        if (key == name) return &value;
    return nullptr;
}

void compareAttributes(const Element& a, const Element& b, std::vector<Difference>& out) {
    for (const auto& [name, before] : a.attributes) {
        const std::wstring* after = valueOf(b.attributes, name);
        if (after == nullptr)
            out.push_back({Change::Removed, Part::Attribute, &a, &b, name, before, L""});
        else if (*after != before)
            out.push_back({Change::Changed, Part::Attribute, &a, &b, name, before, *after});
    }
    for (const auto& [name, after] : b.attributes)
        if (valueOf(a.attributes, name) == nullptr)
            out.push_back({Change::Added, Part::Attribute, &a, &b, name, L"", after});
}

void compareText(const Element& a, const Element& b, std::vector<Difference>& out) {
    if (a.text == b.text) return;
    const Change change =
        a.text.empty() ? Change::Added : (b.text.empty() ? Change::Removed : Change::Changed);
    out.push_back({change, Part::Text, &a, &b, L"", a.text, b.text});
}

// Indexes of `parent`'s children by key and occurrence of that key.
std::map<std::pair<std::wstring, int>, std::size_t> indexChildren(const Element& parent) {
    std::map<std::pair<std::wstring, int>, std::size_t> index;
    std::map<std::wstring, int> seen;
    for (std::size_t i = 0; i < parent.children.size(); ++i)
        index[{parent.children[i].key, seen[parent.children[i].key]++}] = i;
    return index;
}

void compareElements(const Element& a, const Element& b, std::vector<Difference>& out);

void compareChildren(const Element& a, const Element& b, std::vector<Difference>& out) {
    auto inB = indexChildren(b);
    std::map<std::wstring, int> seen;
    std::optional<std::size_t> furthest;
    for (const Element& child : a.children) {
        const auto match = inB.find({child.key, seen[child.key]++});
        if (match == inB.end()) {
            out.push_back({Change::Removed, Part::Element, &child, &b, L"", L"", L""});
            continue;
        }
        const Element& other = b.children[match->second];
        if (furthest && match->second < *furthest)
            out.push_back({Change::Moved, Part::Element, &child, &other, L"", L"", L""});
        else
            furthest = match->second;
        inB.erase(match);
        compareElements(child, other, out);
    }
    std::vector<std::size_t> added;
    for (const auto& [key, index] : inB) added.push_back(index);
    std::sort(added.begin(), added.end());
    for (std::size_t index : added)
        out.push_back({Change::Added, Part::Element, &a, &b.children[index], L"", L"", L""});
}

void compareElements(const Element& a, const Element& b, std::vector<Difference>& out) {
    compareAttributes(a, b, out);
    compareText(a, b, out);
    compareChildren(a, b, out);
}

// The values concerned: both when changed, else the one there is.
std::string values(const Difference& d) {
    if (d.change == Change::Changed) return quote(d.before) + " -> " + quote(d.after);
    return quote(d.change == Change::Added ? d.after : d.before);
}

}  // namespace

std::vector<Difference> compare(const Element& a, const Element& b) {
    std::vector<Difference> out;
    // Roots of one element name are the same configuration, whatever their identity.
    if (a.tag != b.tag) {
        out.push_back({Change::Removed, Part::Element, &a, nullptr, L"", L"", L""});
        out.push_back({Change::Added, Part::Element, nullptr, &b, L"", L"", L""});
    } else {
        compareElements(a, b, out);
    }
    return out;
}

const Element& subjectOf(const Difference& d) {
    return d.change == Difference::Change::Added && d.part == Difference::Part::Element ? *d.b
                                                                                        : *d.a;
}

std::string describe(const Difference& d, Wording wording) {
    static const char* const kLoss[] = {"will be added", "will be dropped", "will change",
                                        "will move among its siblings"};
    static const char* const kDiff[] = {"added", "removed", "changed", "moved"};
    const auto change = static_cast<std::size_t>(d.change);
    const std::string verb = wording == Wording::Loss ? kLoss[change] : kDiff[change];
    const std::string element = utf8(subjectOf(d).label);
    switch (d.part) {
        case Part::Element:
            return element + " " + verb;
        case Part::Attribute:
            return "attribute \"" + utf8(d.attribute) + "\" of " + element + " " + verb + ": " +
                   values(d);
        case Part::Text:
            return "text of " + element + " " + verb + ": " + values(d);
    }
    return element;
}

}  // namespace kazcfg
