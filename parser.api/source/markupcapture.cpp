#include "markupcapture.h"

#include <algorithm>
#include <utility>

namespace kaz::kazparser {
namespace {

using kaz::xml::Node;

// Exact escaping, so that the markup parses back to the same text. Carriage
// returns, and in attribute values tabs and line breaks, are written as
// character references, which a reader does not normalise.
void appendEscaped(std::wstring& out, std::wstring_view text, bool inAttribute) {
    for (wchar_t c : text) {
        switch (c) {
            case L'&':
                out += L"&amp;";
                break;
            case L'<':
                out += L"&lt;";
                break;
            case L'>':
                out += L"&gt;";
                break;
            case L'\r':
                out += L"&#13;";
                break;
            case L'"':
                out += inAttribute ? L"&quot;" : L"\"";
                break;
            case L'\n':
                out += inAttribute ? L"&#10;" : L"\n";
                break;
            case L'\t':
                out += inAttribute ? L"&#9;" : L"\t";
                break;
            default:
                out += c;
        }
    }
}

void appendText(std::wstring& out, const ContentNode& node) {
    if (node.isText()) out += node.text;
    for (const ContentNode& child : node.children) appendText(out, child);
}

}  // namespace

std::optional<std::wstring> ContentNode::attribute(std::wstring_view qName) const {
    for (const auto& [name, value] : attributes)
        if (name == qName) return value;
    return std::nullopt;
}

std::wstring ContentNode::allText() const {
    std::wstring text;
    appendText(text, *this);
    return text;
}

ContentNode contentOf(const Node& node) {
    ContentNode content;
    if (node.type() != Node::Type::Element) {
        content.text = node.text();
        return content;
    }
    content.name = node.nodeName();
    content.attributes = node.attributes();
    for (const auto& child : node.childNodes()) {
        const Node::Type type = child->type();
        if (type == Node::Type::Element || type == Node::Type::Text || type == Node::Type::CData)
            content.children.push_back(contentOf(*child));
    }
    return content;
}

void addAttributes(StartTag& tag, const AttributeList& attributes) {
    for (const auto& [name, value] : attributes) {
        const std::wstring_view escaped = value;
        tag.attribute(name, [escaped](std::wstring& text) { appendEscaped(text, escaped, true); });
    }
}

void appendMarkup(std::wstring& out, const ContentNode& node) {
    if (node.isText()) return appendEscaped(out, node.text, false);
    StartTag tag(out, node.name);
    addAttributes(tag, node.attributes);
    out += L'>';
    for (const ContentNode& child : node.children) appendMarkup(out, child);
    appendEndTag(out, node.name);
}

std::span<const ContentNode> leadingContent(const ContentNode& element) {
    const auto& children = element.children;
    if (!children.empty() && !children.front().isText()) return {children.data(), 1};
    const auto firstElement = std::find_if(children.begin(), children.end(),
                                           [](const ContentNode& n) { return !n.isText(); });
    return {children.data(), static_cast<std::size_t>(firstElement - children.begin())};
}

std::wstring leadingMarkup(const ContentNode& element) {
    std::wstring markup;
    for (const ContentNode& node : leadingContent(element)) appendMarkup(markup, node);
    return markup;
}

void MarkupCapture::startElement(const ElementStart& element) {
    ContentNode& child = addChild();
    child.name = element.name;
    readAttributes(element, child.attributes);
    open_.push_back(&child);
}

void MarkupCapture::characters(const std::wstring& text) {
    const auto& children = open().children;
    if (children.empty() || !children.back().isText()) addChild().attributes.clear();
    open().children.back().text += text;
}

void MarkupCapture::endElement() {
    if (!open_.empty()) open_.pop_back();
}

void MarkupCapture::clear() {
    recycle(root_.children);
    open_.clear();
}

ContentNode& MarkupCapture::addChild() {
    auto& children = open().children;
    if (spares_.empty()) return children.emplace_back();
    children.push_back(std::move(spares_.back()));
    spares_.pop_back();
    return children.back();
}

void MarkupCapture::recycle(std::vector<ContentNode>& nodes) {
    for (ContentNode& node : nodes) {
        recycle(node.children);
        node.name.clear();
        node.text.clear();
        spares_.push_back(std::move(node));
    }
    nodes.clear();
}

std::wstring MarkupCapture::markup() const {
    std::wstring markup;
    for (const ContentNode& node : root_.children) appendMarkup(markup, node);
    return markup;
}

}  // namespace kaz::kazparser
