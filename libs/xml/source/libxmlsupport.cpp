#include "libxmlsupport.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <memory>
#include <mutex>

#include "ioutils/TextCodec.h"
#include "kazxml/SAX.h"

namespace kaz::xml::detail {

void ensureParserInitialized() {
    static std::once_flag once;
    std::call_once(once, [] { xmlInitParser(); });
}

namespace {

void configure(xmlParserCtxtPtr ctxt) {
    xmlCtxtUseOptions(ctxt, kParseOptions);
    xmlSwitchEncoding(ctxt, XML_CHAR_ENCODING_UTF8);
}

}  // namespace

xmlParserCtxtPtr openPushParser(xmlSAXHandler sax, void* userData) {
    ensureParserInitialized();
    xmlParserCtxtPtr ctxt = xmlCreatePushParserCtxt(&sax, userData, nullptr, 0, nullptr);
    if (ctxt != nullptr) configure(ctxt);
    return ctxt;
}

bool resetPushParser(xmlParserCtxtPtr ctxt) {
    if (xmlCtxtResetPush(ctxt, nullptr, 0, nullptr, nullptr) != 0) return false;
    configure(ctxt);
    return true;
}

namespace {

// Finds start tags with more attributes than the reader allows, before
// libxml2 sees them: it checks each attribute against all before it, so
// that its time grows with the square of their number.
//
// Each attribute has a quoted value, and libxml2 ends a start tag at the
// first "<" in it. So only a run between two "<" holding more than two
// quotes per allowed attribute can be such a tag; the guard screens runs
// block by block until it meets one. From there on it follows the
// markup exactly: it counts the quoted values of each start tag, and passes
// over comments, CDATA sections, processing instructions and end tags.
class AttributeGuard {
public:
    explicit AttributeGuard(std::wstring_view text) : text_(text) {}

    // Where the first such start tag begins before `end`, else nothing.
    std::optional<std::size_t> crowdedTagBefore(std::size_t end) {
        if (!exact_) {
            exact_ = quoteCrowdedRun(end);
            if (!exact_) return std::nullopt;
        }
        while (next_ < end) {
            const std::size_t open = text_.find(L'<', next_);
            if (open == text_.npos || open >= end) {
                next_ = std::min(open, text_.size());
                break;
            }
            const std::wstring_view markup = text_.substr(open);
            if (markup.starts_with(L"<!--")) {
                next_ = past(L"-->", open + 4);
            } else if (markup.starts_with(L"<![CDATA[")) {
                next_ = past(L"]]>", open + 9);
            } else if (markup.starts_with(L"<?")) {
                next_ = past(L"?>", open + 2);
            } else if (markup.starts_with(L"</") || markup.starts_with(L"<!")) {
                next_ = past(L">", open + 2);
            } else if (!startTagAllowed(open)) {
                return open;
            }
        }
        return std::nullopt;
    }

private:
    static constexpr std::size_t kMostQuotes = 2 * SAXXMLReader::kMaxAttributes;
    // A block holds no more quotes than half of kMostQuotes, so a run that
    // held no more than the other half before it cannot pass the limit in it.
    static constexpr std::size_t kScreenBlock = kMostQuotes / 2;

    // Whether the runs between "<" up to `end` may hold too many quotes.
    // Most blocks need only a look back to their last "<" (the quotes
    // after it begin the next run); the rest are counted whole.
    bool quoteCrowdedRun(std::size_t end) {
        while (screened_ < end) {
            const std::wstring_view block =
                text_.substr(screened_, std::min(kScreenBlock, end - screened_));
            screened_ += block.size();
            const std::size_t lastOpen = block.rfind(L'<');
            if (lastOpen == block.npos || quotesInRun_ > kMostQuotes - kScreenBlock) {
                const std::size_t quotes = quotesIn(block);
                if (quotesInRun_ + quotes > kMostQuotes) return true;
                if (lastOpen == block.npos) {
                    quotesInRun_ += quotes;
                    continue;
                }
            }
            quotesInRun_ = quotesIn(block.substr(lastOpen));
        }
        return false;
    }

    // A plain count, which the compiler makes vector code.
    static std::size_t quotesIn(std::wstring_view units) {
        std::size_t quotes = 0;
        for (const wchar_t unit : units)
            quotes += std::size_t{unit == L'"'} + std::size_t{unit == L'\''};
        return quotes;
    }

    std::size_t past(std::wstring_view terminator, std::size_t from) const {
        const std::size_t at = text_.find(terminator, from);
        return at == text_.npos ? text_.size() : at + terminator.size();
    }

    // Counts the quoted values of the start tag at `open`, moving past it.
    bool startTagAllowed(std::size_t open) {
        int values = 0;
        std::size_t at = open + 1;
        while ((at = text_.find_first_of(L">\"'", at)) != text_.npos && text_[at] != L'>') {
            if (++values > SAXXMLReader::kMaxAttributes) return false;
            at = text_.find(text_[at], at + 1);
            if (at == text_.npos) break;
            ++at;
        }
        next_ = std::min(at, text_.size() - 1) + 1;
        return true;
    }

    std::wstring_view text_;
    std::size_t screened_ = 0;     // how far the quotes are counted
    std::size_t quotesInRun_ = 0;  // since the last "<"
    bool exact_ = false;           // whether the markup is followed
    std::size_t next_ = 0;         // where the text outside markup goes on
};

}  // namespace

std::optional<ErrorReport> feedPushParser(xmlParserCtxtPtr ctxt, std::wstring_view text,
                                          const bool& stop) {
    // Converted a piece at a time, so that no UTF-8 copy of the whole text
    // is ever made. A value no UTF-8 may hold goes in as the bytes of its
    // own value, for libxml2 to refuse where it stands.
    constexpr std::size_t kPieceLength = 16 * 1024;
    AttributeGuard guard(text);
    // Room for the longest piece, made once (and left unset): each piece is
    // encoded into it.
    const auto piece = std::make_unique_for_overwrite<char[]>(ioutils::kMaxUtf8Length *
                                                              std::min(kPieceLength, text.size()));
    for (std::size_t offset = 0; offset < text.size() && !stop;) {
        std::wstring_view next = text.substr(offset, kPieceLength);
        const std::optional<std::size_t> crowded = guard.crowdedTagBefore(offset + next.size());
        // Up to the crowded tag's "<" (already fed when the tag began in an
        // earlier piece): libxml2 reads all before it and then waits for
        // the tag's ">", which it never gets.
        if (crowded) next = next.substr(0, *crowded < offset ? 0 : *crowded - offset + 1);
        offset += next.size();
        const char* end = ioutils::encodeUtf8(piece.get(), next, ioutils::Unencodable::KeepValue);
        xmlParseChunk(ctxt, piece.get(), static_cast<int>(end - piece.get()),
                      !crowded && offset == text.size() ? 1 : 0);
        if (crowded) {
            if (stop) break;  // an error before the tag comes first
            LinePosition tag(text);
            tag.advanceTo(*crowded);
            return ErrorReport{XML_E_TOO_MANY_ATTRIBUTES, tag.line(), tag.column(),
                               refusalMessage(XML_E_TOO_MANY_ATTRIBUTES)};
        }
    }
    return std::nullopt;
}

std::wstring_view textForParser(const std::wstring& text) {
    std::wstring_view view(text);
    if (!view.empty() && view.front() == L'\xFEFF') view.remove_prefix(1);
    return view;
}

bool blank(std::wstring_view text) {
    return text.find_first_not_of(L" \t\r\n") == text.npos;
}

std::wstring toWide(const xmlChar* text) {
    if (text == nullptr) return std::wstring();
    return ioutils::wideFromUtf8(reinterpret_cast<const char*>(text));
}

std::wstring toWide(const xmlChar* text, std::size_t length) {
    if (text == nullptr) return std::wstring();
    return ioutils::wideFromUtf8(std::string_view(reinterpret_cast<const char*>(text), length));
}

std::wstring qualifiedName(const xmlChar* prefix, const xmlChar* localName) {
    if (prefix == nullptr) return toWide(localName);
    return toWide(prefix) + L':' + toWide(localName);
}

std::string decodeAmpersands(std::string_view delivered) {
    constexpr std::string_view kAmpersand = "&#38;";
    std::string value;
    value.reserve(delivered.size());
    for (std::size_t pos = 0; pos < delivered.size();) {
        const std::size_t found = delivered.find(kAmpersand, pos);
        value.append(delivered.substr(pos, found - pos));
        if (found == delivered.npos) break;
        value += '&';
        pos = found + kAmpersand.size();
    }
    return value;
}

void assignAttributeValue(std::wstring& out, std::string_view delivered) {
    if (delivered.find('&') == delivered.npos)
        ioutils::assignWideFromUtf8(out, delivered);
    else
        ioutils::assignWideFromUtf8(out, decodeAmpersands(delivered));
}

std::wstring namespaceName(const xmlChar* delivered) {
    if (delivered == nullptr) return std::wstring();
    std::wstring value;
    assignAttributeValue(value, reinterpret_cast<const char*>(delivered));
    return value;
}

xmlErrorLevel severity(const xmlError& error) {
    // A namespace name's URI syntax is no rule of well-formedness.
    const bool namespaceError = error.domain == XML_FROM_NAMESPACE &&
                                error.level == XML_ERR_ERROR && error.code != XML_WAR_NS_URI;
    if (namespaceError || error.code == XML_WAR_UNKNOWN_VERSION) return XML_ERR_FATAL;
    return error.level;
}

ErrorReport reportFrom(const xmlError& error) {
    ErrorReport report{XML_E_PARSE_BASE + error.code, error.line, error.int2,
                       toWide(BAD_CAST error.message)};
    while (!report.message.empty() &&
           (report.message.back() == L'\n' || report.message.back() == L'\r'))
        report.message.pop_back();
    return report;
}

ErrorReport refusalAt(const xmlParserCtxt* ctxt, long code) {
    return {code, currentLine(ctxt), currentColumn(ctxt), refusalMessage(code)};
}

long startTagRefusal(const xmlParserCtxt* ctxt, int depth) {
    if (depth > SAXXMLReader::kMaxDepth) return XML_E_TOO_DEEP;
    // libxml2 keeps a prefix and a name per declaration in scope.
    if (ctxt->nsNr / 2 > SAXXMLReader::kMaxNamespaces) return XML_E_TOO_MANY_NAMESPACES;
    return S_OK;
}

ErrorReport emptyDocument() {
    return {XML_E_PARSE_BASE + XML_ERR_DOCUMENT_EMPTY, 1, 1, L"Document is empty"};
}

std::wstring describe(const ErrorReport& report) {
    return L"line " + std::to_wstring(report.line) + L", column " + std::to_wstring(report.column) +
           L": " + report.message;
}

int currentLine(const xmlParserCtxt* ctxt) {
    return ctxt != nullptr && ctxt->input != nullptr ? ctxt->input->line : 0;
}

int currentColumn(const xmlParserCtxt* ctxt) {
    return ctxt != nullptr && ctxt->input != nullptr ? ctxt->input->col : 0;
}

}  // namespace kaz::xml::detail
