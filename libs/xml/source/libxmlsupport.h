#pragma once

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "ioutils/TextCodec.h"
#include "kazxml/Result.h"

// Helpers shared by the SAX reader and the document loader.
namespace kaz::xml::detail {

// Nothing from the network; the text is UTF-8 whatever its declaration says.
// Entities are never substituted (no XML_PARSE_NOENT) and no DTD is loaded.
constexpr int kParseOptions = XML_PARSE_NONET | XML_PARSE_IGNORE_ENC;

// The message of one of the reader's own refusals (an XML_E_ code of Result.h).
constexpr const wchar_t* refusalMessage(long code) {
    switch (code) {
        case XML_E_DTD_PROHIBITED:
            return L"document type declarations are not allowed";
        case XML_E_TOO_DEEP:
            return L"elements nested deeper than 256 levels";
        case XML_E_TOO_MANY_ATTRIBUTES:
            return L"elements with more than 1000 attributes";
        case XML_E_TOO_MANY_NAMESPACES:
            return L"more than 1000 namespace declarations in scope";
        default:
            return L"refused";
    }
}

// Initializes libxml2 once per process, before the first parse.
void ensureParserInitialized();

// A push parser calling `sax` (copied) back with `userData` (null: the
// context itself), under kParseOptions, told that the text is UTF-8.
// Null when out of memory.
xmlParserCtxtPtr openPushParser(xmlSAXHandler sax, void* userData);
// Makes a context whose last parse ended ready for a new text, keeping its
// handler, user data and dictionary; false when out of memory.
bool resetPushParser(xmlParserCtxtPtr ctxt);

// The text the parser reads: without a leading byte order mark (which
// libxml2 would take for content once told the text is UTF-8).
std::wstring_view textForParser(const std::wstring& text);
// True when the text holds nothing but XML whitespace.
bool blank(std::wstring_view text);

std::wstring toWide(const xmlChar* text);
std::wstring toWide(const xmlChar* text, std::size_t length);
// "prefix:localName", or "localName" without a prefix.
std::wstring qualifiedName(const xmlChar* prefix, const xmlChar* localName);
inline const xmlChar* asXmlChars(const std::string& text) {
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

// libxml2 hands every "&" of an attribute value (namespace names included)
// over as "&#38;", keeping the reference unexpanded. A literal "&" cannot
// occur there otherwise, so turning each "&#38;" back into "&", left to
// right, restores the value exactly.
std::string decodeAmpersands(std::string_view delivered);
void assignAttributeValue(std::wstring& out, std::string_view delivered);
std::wstring namespaceName(const xmlChar* delivered);  // empty for null

// One problem found in the text, with its place.
struct ErrorReport {
    long code = S_OK;
    int line = 0;
    int column = 0;
    std::wstring message;
};

// Feeds the text as UTF-8 in pieces, the last one ending the document;
// stops early once `stop` turns true. A start tag with more attributes than
// the reader allows is never fed: the text before it is, and its refusal
// is the answer.
std::optional<ErrorReport> feedPushParser(xmlParserCtxtPtr ctxt, std::wstring_view text,
                                          const bool& stop);

// How severe a libxml2 report is for us. A namespace-aware reader refuses
// what libxml2 only calls an error of the namespace rules (an undeclared
// prefix, a rebound "xml" prefix, ...), and reads XML 1.0 only, where
// libxml2 merely warns about another version.
xmlErrorLevel severity(const xmlError& error);

// A libxml2 error as we report it: our code range, message without newline.
ErrorReport reportFrom(const xmlError& error);
// One of our own refusals, at the parser's current position.
ErrorReport refusalAt(const xmlParserCtxt* ctxt, long code);
// The refusal of the start tag just read, `depth` levels down, or S_OK.
long startTagRefusal(const xmlParserCtxt* ctxt, int depth);
// The report of a text holding no element at all.
ErrorReport emptyDocument();
// "line 3, column 7: <message>"
std::wstring describe(const ErrorReport& report);

// Line and column (from 1) of places in a wide text, one character a
// column, moved on in increasing order so that the text is read once. Line
// breaks are "\n", "\r\n" and "\r".
class LinePosition {
public:
    explicit LinePosition(std::wstring_view text) : text_(text) {}

    // Moves on to `target` (never back); text[target] must exist. Blocks
    // without a line break are passed whole.
    void advanceTo(std::size_t target) {
        while (offset_ < target) {
            const std::size_t end = std::min(offset_ + ioutils::kBlock, target);
            // A whole block is tested even where it runs past `target`.
            if (offset_ + ioutils::kBlock <= text_.size() &&
                !mayBreakLine(text_.data() + offset_)) {
                offset_ = end;
                continue;
            }
            for (; offset_ < end; ++offset_) {
                const wchar_t unit = text_[offset_];
                if (unit == L'\n' || (unit == L'\r' && text_[offset_ + 1] != L'\n')) {
                    ++line_;
                    lineBegin_ = offset_ + 1;
                }
            }
        }
    }
    int line() const { return line_; }
    int column() const { return 1 + static_cast<int>(offset_ - lineBegin_); }

private:
    // Whether a block holds a unit up to '\r' (or one beyond 0x8000000D,
    // which the unit-by-unit pass then passes over).
    static bool mayBreakLine(const wchar_t* block) {
        return ioutils::orOverBlock(block, [](auto units) { return units - (L'\r' + 1u); }) >> 31;
    }

    std::wstring_view text_;
    std::size_t offset_ = 0;
    std::size_t lineBegin_ = 0;  // where line_ begins
    int line_ = 1;
};

int currentLine(const xmlParserCtxt* ctxt);
int currentColumn(const xmlParserCtxt* ctxt);

}  // namespace kaz::xml::detail
