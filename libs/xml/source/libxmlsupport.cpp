#include "libxmlsupport.h"

#include <mutex>

#include "ioutils/TextCodec.h"

namespace kaz::xml::detail {

void ensureParserInitialized() {
    static std::once_flag once;
    std::call_once(once, [] { xmlInitParser(); });
}

std::string utf8ForParser(const std::wstring& text) {
    std::wstring_view view(text);
    if (!view.empty() && view.front() == L'\xFEFF') view.remove_prefix(1);
    return ioutils::utf8FromWide(view);
}

bool blank(std::string_view utf8) { return utf8.find_first_not_of(" \t\r\n") == utf8.npos; }

std::wstring toWide(const xmlChar* text) {
    if (text == nullptr) return std::wstring();
    return ioutils::wideFromUtf8(reinterpret_cast<const char*>(text));
}

std::wstring toWide(const xmlChar* text, std::size_t length) {
    if (text == nullptr) return std::wstring();
    return ioutils::wideFromUtf8(std::string_view(reinterpret_cast<const char*>(text), length));
}

ErrorReport reportFrom(const xmlError& error) {
    ErrorReport report{XML_E_PARSE_BASE + error.code, error.line, error.int2, toWide(BAD_CAST error.message)};
    while (!report.message.empty() && (report.message.back() == L'\n' || report.message.back() == L'\r'))
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
