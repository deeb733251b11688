#pragma once

#include <string>

// What the library is measured against: libxml2's SAX2 parser over the same
// bytes, and pugixml's DOM where it is installed.
namespace kazbench {

// Parses `text` (UTF-8) with callbacks that do nothing; false when libxml2
// refuses it.
bool parseWithEmptyCallbacks(const std::string& text);
// Parses `text` with callbacks that copy every element name, attribute value
// and piece of text into wide strings, as a tree of wide strings needs.
bool parseWithCopyingCallbacks(const std::string& text);

}  // namespace kazbench
