#pragma once

#include <memory>
#include <string>
#include <vector>

// What the library is measured against: libxml2's SAX2 parser over the same
// bytes, and pugixml's DOM where it is installed.
namespace kazbench {

// Parses `text` (UTF-8) with callbacks that do nothing; false when libxml2
// refuses it.
bool parseWithEmptyCallbacks(const std::string& text);
// Parses `text` with callbacks that copy every element name, attribute value
// and piece of text into wide strings, as a tree of wide strings needs.
bool parseWithCopyingCallbacks(const std::string& text);

// The least a tree of wide strings keeps for an element: a heap node with its
// attribute values, its text and its children. The floor for building and
// deleting a tree of separate nodes with this allocator.
struct MinimalNode {
    virtual ~MinimalNode() = default;
    std::vector<std::wstring> values;
    std::wstring text;
    std::vector<std::unique_ptr<MinimalNode>> children;
};

// Parses `text` with callbacks that build that tree; null when refused.
std::unique_ptr<MinimalNode> buildMinimalTree(const std::string& text);

}  // namespace kazbench
