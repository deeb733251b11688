#include "libxmlsupport.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <mutex>

#include "ioutils/TextCodec.h"

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

void feedPushParser(xmlParserCtxtPtr ctxt, std::wstring_view text, const bool& stop) {
    // Converted a piece at a time, so that no UTF-8 copy of the whole text
    // is ever made. A value no UTF-8 may hold goes in as the bytes of its
    // own value, for libxml2 to refuse where it stands.
    constexpr std::size_t kPieceLength = 16 * 1024;
    std::string piece;
    for (std::size_t offset = 0; offset < text.size() && !stop;) {
        const std::wstring_view next = text.substr(offset, kPieceLength);
        offset += next.size();
        piece.clear();
        ioutils::appendUtf8FromWide(piece, next, ioutils::Unencodable::KeepValue);
        xmlParseChunk(ctxt, piece.data(), static_cast<int>(piece.size()),
                      offset == text.size() ? 1 : 0);
    }
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
    return {code, currentLine(ctxt), currentColumn(ctxt),
            code == XML_E_DTD_PROHIBITED ? kDoctypeRefused : kTooDeep};
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
