#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kazxml/Document.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// A piece of an element's content: an element with its attributes
// (qualified names, document order) and its own content, or a run of
// character data. Comments and processing instructions are not kept, as the
// tree builder never sees them.
struct ContentNode {
    std::wstring name;  // empty for character data
    AttributeList attributes;
    std::wstring text;  // the character data
    std::vector<ContentNode> children;

    bool isText() const { return name.empty(); }
    // The value of the first attribute named `qName`.
    std::optional<std::wstring> attribute(std::wstring_view qName) const;
    // Every piece of character data inside, nested elements' included.
    std::wstring allText() const;
};

// An element of a document, or its character data, as content.
ContentNode contentOf(const kaz::xml::Node& node);

// Markup that parses back to the same content: start tags with their
// attributes, exactly escaped text, end tags.
void appendMarkup(std::wstring& out, const ContentNode& node);
// Adds `attributes` to `tag`, in order, their values exactly escaped.
void addAttributes(StartTag& tag, const AttributeList& attributes);

// What the content of `element` starts with: its first child element, or
// else the character data before any element, every piece of it (so that
// text split by CDATA sections stays whole). Empty when it holds neither.
std::span<const ContentNode> leadingContent(const ContentNode& element);
// The markup of leadingContent(element).
std::wstring leadingMarkup(const ContentNode& element);

// Collects the content of an element as the reader delivers it. Data values
// and references keep their content this way while their element is open.
class MarkupCapture {
public:
    void startElement(const ElementStart& element);
    void characters(const std::wstring& text);
    void endElement();
    void clear();

    // The content collected, as the children of a nameless element.
    const ContentNode& content() const { return root_; }
    std::wstring markup() const;

private:
    ContentNode& open() { return open_.empty() ? root_ : *open_.back(); }
    // A new last child of the innermost open element, made from a spare.
    ContentNode& addChild();
    // Moves `nodes` and everything inside them to the spares.
    void recycle(std::vector<ContentNode>& nodes);

    ContentNode root_;
    // Nodes of earlier captures, kept with their storage: the values of a
    // text repeat their shapes, so most captures allocate nothing.
    std::vector<ContentNode> spares_;
    // The elements still open, innermost last; only the innermost one grows,
    // so the others stay where they are.
    std::vector<ContentNode*> open_;
};

}  // namespace kaz::kazparser
