#pragma once

#include <string>
#include <vector>

#include "kazxml/Document.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// Collects the content of an element as it is read: its character data, and
// the same content as markup that parses back to it (start tags with their
// attributes, escaped text, end tags; nothing else). Data values and
// references keep their content this way while their element is open.
class MarkupCapture {
public:
    void startElement(const ElementStart& element);
    void startElement(const std::wstring& name, const AttributeList& attributes);
    void characters(const std::wstring& text);
    void endElement(const std::wstring& name);
    void clear();

    // Every piece of character data, nested elements' included, in order.
    const std::wstring& text() const { return text_; }
    const std::wstring& markup() const { return markup_; }
    // Whether an element was opened inside the content.
    bool hasElements() const { return hasElements_; }

    // Adds `node` and what it holds; comments and processing instructions
    // are left out, as the tree builder never sees them.
    void add(const kaz::xml::Node& node);

private:
    void appendAttribute(std::wstring_view name, std::wstring_view value);

    std::wstring text_;
    std::wstring markup_;
    bool hasElements_ = false;
};

// What the content of `element` starts with: its first child element, or
// else the character data before any element, every piece of it (so that
// text split by CDATA sections stays whole). Comments and processing
// instructions are skipped. Empty when the element holds neither.
std::vector<kaz::xml::IXMLDOMNodePtr> leadingContent(const kaz::xml::Node& element);
// The markup of leadingContent(element).
std::wstring firstChildMarkup(const kaz::xml::Node& element);

}  // namespace kaz::kazparser
