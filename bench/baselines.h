#pragma once

#include <memory>
#include <string>
#include <vector>

// What the library is measured against: libxml2's SAX2 parser over the same
// bytes, pugixml's DOM where it is installed, and the library's SAX reader
// with the least a handler can do.
namespace kazbench {

// Parses `text` (UTF-8) with callbacks that do nothing; false when libxml2
// refuses it.
bool parseWithEmptyCallbacks(const std::string& text);
// Parses `text` with callbacks that copy every element name, attribute value
// and piece of text into wide strings, as a tree of wide strings needs.
bool parseWithCopyingCallbacks(const std::string& text);

// The least a tree of wide strings keeps for an element: a heap node with its
// name, its attributes, its text and its children. The floor for building,
// writing and deleting a tree of separate nodes with this allocator.
struct MinimalNode {
    virtual ~MinimalNode() = default;
    std::wstring name;
    std::vector<std::pair<std::wstring, std::wstring>> attributes;  // (name, value)
    std::wstring text;
    std::vector<std::unique_ptr<MinimalNode>> children;
    int line = 0, column = 0;  // of the start tag; filled only through the SAX reader
};

// Parses `text` with callbacks that build that tree; null when refused.
std::unique_ptr<MinimalNode> buildMinimalTree(const std::string& text);

// The same through the library's own SAX reader, which hands a content
// handler wide names, values and text and each start tag's position: the
// floor of any builder behind that interface. The first does nothing with
// the events; the second builds the minimal tree with positions.
bool parseWithReader(const std::wstring& text);
std::unique_ptr<MinimalNode> buildMinimalTreeThroughReader(const std::wstring& text);

// Appends `node` as XML text to `out`: tags, attributes and text, with the
// characters markup needs escaped. The floor for writing a tree as text.
void writeMinimalTree(const MinimalNode& node, std::wstring& out);

}  // namespace kazbench
