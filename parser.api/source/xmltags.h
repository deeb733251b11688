#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tableobj/IXmlWriter.h"

namespace kaz::kazparser {

// An attribute name spelled in the code, its length counted when compiling.
class AttributeName {
public:
    template <std::size_t N>
    consteval AttributeName(const wchar_t (&name)[N]) : view_(name, N - 1) {}
    operator std::wstring_view() const { return view_; }

private:
    std::wstring_view view_;
};

// Appends a start tag to `out`: "<" name, then each present attribute as
// ` name="value"`. Values are written as given; the tag is left open.
class StartTag {
public:
    StartTag(std::wstring& out, std::wstring_view name);

    // A text attribute, written when not empty.
    StartTag& text(AttributeName name, const std::wstring& value);
    // A flag, written as "true" when set and never when clear.
    StartTag& flag(AttributeName name, bool value);
    // A number in fixed notation with four decimals, written when `present`.
    StartTag& number(AttributeName name, double value, bool present);
    // An attribute written whatever its value.
    StartTag& always(std::wstring_view name, std::wstring_view value);
    // An attribute whose value `appendValue(std::wstring&)` appends.
    template <class AppendValue>
    StartTag& attribute(std::wstring_view name, AppendValue&& appendValue) {
        out_ += L' ';
        out_ += name;
        out_ += L'=';
        out_ += L'"';
        appendValue(out_);
        out_ += L'"';
        return *this;
    }
    // The tag so far, for attributes kept as markup.
    std::wstring& markup() { return out_; }

private:
    std::wstring& out_;
};

// The attributes of a tag that has none.
struct NoAttributes {
    void operator()(StartTag&) const {}
};

// How element content is written.
enum class Content { AsIs, Escaped };

using tableobj::appendEndTag;
// "</" name ">"
std::wstring endTag(std::wstring_view name);

// The start tag of `name` with the attributes `addAttributes(StartTag&)`
// adds, as one piece.
template <class AddAttributes>
bool writeStartTag(tableobj::IXmlWriter& out, std::wstring_view name,
                   AddAttributes&& addAttributes) {
    return tableobj::buildPiece(out, [&](std::wstring& text) {
        StartTag tag(text, name);
        addAttributes(tag);
        text += L'>';
    });
}

// The end tag of `name` as one piece.
bool writeEndTag(tableobj::IXmlWriter& out, std::wstring_view name);

// `text` as one piece, as it is or escaped; nothing when it is empty.
bool writeContent(tableobj::IXmlWriter& out, std::wstring_view text, Content form);

// The start tag (see writeStartTag), what `writeInner(IXmlWriter&)` writes,
// and the end tag of `name`; answers the end-tag write.
template <class AddAttributes, class WriteInner>
bool writeElement(tableobj::IXmlWriter& out, std::wstring_view name, AddAttributes&& addAttributes,
                  WriteInner&& writeInner) {
    writeStartTag(out, name, addAttributes);
    writeInner(out);
    return writeEndTag(out, name);
}

// Everything `write(IXmlWriter&)` writes, handed over as one piece.
template <class Write>
bool writeAsOnePiece(tableobj::IXmlWriter& out, Write&& write) {
    return tableobj::buildPiece(out, [&](std::wstring& text) {
        tableobj::StringXmlWriter whole(text);
        write(whole);
    });
}

}  // namespace kaz::kazparser
