#include "markupcapture.h"

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

bool isCharacterData(const Node& node) {
    return node.type() == Node::Type::Text || node.type() == Node::Type::CData;
}

}  // namespace

void MarkupCapture::startElement(const ElementStart& element) {
    hasElements_ = true;
    markup_.append(L"<").append(element.name);
    forEachAttribute(element, AttributeNaming::Qualified,
                     [&](auto name, auto value) { appendAttribute(name, value); });
    markup_ += L'>';
}

void MarkupCapture::startElement(const std::wstring& name, const AttributeList& attributes) {
    hasElements_ = true;
    markup_.append(L"<").append(name);
    for (const auto& [attribute, value] : attributes) appendAttribute(attribute, value);
    markup_ += L'>';
}

void MarkupCapture::appendAttribute(std::wstring_view name, std::wstring_view value) {
    markup_.append(L" ").append(name).append(L"=\"");
    appendEscaped(markup_, value, true);
    markup_ += L'"';
}

void MarkupCapture::characters(const std::wstring& text) {
    text_ += text;
    appendEscaped(markup_, text, false);
}

void MarkupCapture::endElement(const std::wstring& name) {
    markup_ += L"</";
    markup_ += name;
    markup_ += L'>';
}

void MarkupCapture::clear() {
    text_.clear();
    markup_.clear();
    hasElements_ = false;
}

void MarkupCapture::add(const Node& node) {
    if (isCharacterData(node)) {
        characters(node.text());
    } else if (node.type() == Node::Type::Element) {
        const std::wstring name = node.nodeName();
        startElement(name, node.attributes());
        for (const auto& child : node.childNodes()) add(*child);
        endElement(name);
    }
}

std::vector<kaz::xml::IXMLDOMNodePtr> leadingContent(const Node& element) {
    std::vector<kaz::xml::IXMLDOMNodePtr> nodes;
    for (auto& child : element.childNodes()) {
        if (child->type() == Node::Type::Element) {
            if (nodes.empty()) nodes.push_back(std::move(child));
            break;
        }
        if (isCharacterData(*child)) nodes.push_back(std::move(child));
    }
    return nodes;
}

std::wstring firstChildMarkup(const Node& element) {
    MarkupCapture capture;
    for (const auto& node : leadingContent(element)) capture.add(*node);
    return capture.markup();
}

}  // namespace kaz::kazparser
