#include "xmltags.h"

#include "ioutils/Numbers.h"
#include "tableobj/XmlEscape.h"

namespace kaz::kazparser {

using namespace std::string_view_literals;

StartTag::StartTag(std::wstring& out, std::wstring_view name) : out_(out) {
    out_ += L'<';
    out_ += name;
}

StartTag& StartTag::text(AttributeName name, const std::wstring& value) {
    if (!value.empty()) always(name, value);
    return *this;
}

StartTag& StartTag::flag(AttributeName name, bool value) {
    if (value) always(name, L"true"sv);
    return *this;
}

StartTag& StartTag::number(AttributeName name, double value, bool present) {
    if (!present) return *this;
    return attribute(name, [value](std::wstring& text) { ioutils::appendFixed4(text, value); });
}

StartTag& StartTag::always(std::wstring_view name, std::wstring_view value) {
    return attribute(name, [value](std::wstring& text) { text += value; });
}

std::wstring endTag(std::wstring_view name) {
    std::wstring tag;
    appendEndTag(tag, name);
    return tag;
}

bool writeEndTag(tableobj::IXmlWriter& out, std::wstring_view name) {
    return tableobj::buildPiece(out, [name](std::wstring& text) { appendEndTag(text, name); });
}

bool writeContent(tableobj::IXmlWriter& out, std::wstring_view text, Content form) {
    if (text.empty()) return true;
    return tableobj::buildPiece(out, [&](std::wstring& piece) {
        if (form == Content::Escaped)
            tableobj::appendEscapedText(piece, text);
        else
            piece += text;
    });
}

}  // namespace kaz::kazparser
