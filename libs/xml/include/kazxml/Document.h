#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kazxml/Export.h"

namespace kaz::xml {

class Document;
class Node;

// Reference-counted handles. A node handle keeps its document alive.
using IXMLDOMDocument2Ptr = std::shared_ptr<Document>;
using IXMLDOMNodePtr = std::shared_ptr<Node>;

// Where and why the last load failed.
struct ParseErrorInfo {
    long code = 0;  // 0 after a successful load
    int line = 0;
    int column = 0;
    std::wstring reason;
};

// An XML document loaded from text, under the same rules as the SAX reader
// (no document type declarations, nothing external, depth limit).
class KAZXML_API Document : public std::enable_shared_from_this<Document> {
public:
    static IXMLDOMDocument2Ptr create();
    virtual ~Document();

    // Replaces the content with the parsed text; false (and no content) when
    // the text is empty or not well-formed.
    bool loadXML(const std::wstring& text);
    const ParseErrorInfo& parseError() const;

    // Null when nothing is loaded.
    IXMLDOMNodePtr documentElement() const;
    // XPath 1.0 from the document; an invalid expression throws PlatformError.
    IXMLDOMNodePtr selectSingleNode(const std::wstring& xpath) const;
    std::vector<IXMLDOMNodePtr> selectNodes(const std::wstring& xpath) const;
    // Markup of the whole document, without XML declaration.
    std::wstring xml() const;

    struct Impl;

private:
    Document();
    std::shared_ptr<Impl> impl_;
};

class KAZXML_API Node {
public:
    enum class Type { Element, Text, CData, Comment, ProcessingInstruction, Other };

    virtual ~Node();

    Type type() const;
    // Qualified name of an element; "#text", "#cdata-section", "#comment" otherwise.
    std::wstring nodeName() const;
    IXMLDOMNodePtr parentNode() const;
    IXMLDOMNodePtr firstChild() const;
    IXMLDOMNodePtr nextSibling() const;
    std::vector<IXMLDOMNodePtr> childNodes() const;
    // All character data of the node and its descendants, in order.
    std::wstring text() const;
    // Markup of the node: no XML declaration, attribute values and text escaped.
    std::wstring xml() const;
    std::optional<std::wstring> attribute(const std::wstring& qName) const;
    // Attributes as (qualified name, value) in document order.
    std::vector<std::pair<std::wstring, std::wstring>> attributes() const;
    // A copy (with its descendants when deep) that belongs to no parent.
    IXMLDOMNodePtr cloneNode(bool deep) const;
    // XPath 1.0 relative to this node; an invalid expression throws PlatformError.
    IXMLDOMNodePtr selectSingleNode(const std::wstring& xpath) const;
    std::vector<IXMLDOMNodePtr> selectNodes(const std::wstring& xpath) const;

    struct Impl;
    explicit Node(std::unique_ptr<Impl> impl);

private:
    std::unique_ptr<Impl> impl_;
};

}  // namespace kaz::xml
