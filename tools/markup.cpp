#include "markup.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>

#include "input.h"

namespace kazcfg {

namespace {

struct Scan {
    std::string_view utf8;
    xmlParserCtxtPtr ctxt = nullptr;
    std::vector<PassedOver> found;
};

// Line and column (in characters) of a byte offset; a line ends at "\n",
// "\r\n" or "\r", as for the places the library gives.
kaz::kazparser::SourceLocation locationOf(std::string_view utf8, std::size_t offset) {
    kaz::kazparser::SourceLocation where{1, 1};
    for (std::size_t i = 0; i < offset; ++i) {
        const char c = utf8[i];
        if (c == '\n' || (c == '\r' && (i + 1 >= utf8.size() || utf8[i + 1] != '\n'))) {
            ++where.line;
            where.column = 1;
        } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80 && c != '\r') {
            ++where.column;  // continuation bytes belong to the character before
        }
    }
    return where;
}

// Records the markup that ends where the parser stands and starts at the
// last `opening` before it.
void record(void* context, std::string_view opening) {
    auto* scan = static_cast<Scan*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    const auto end = static_cast<std::size_t>(xmlByteConsumed(scan->ctxt));
    const std::size_t start = scan->utf8.rfind(opening, end > 0 ? end - 1 : 0);
    if (start == std::string_view::npos || end <= start) return;
    scan->found.push_back(
        {wide(scan->utf8.substr(start, end - start)), locationOf(scan->utf8, start)});
}

void onComment(void* context, const xmlChar*) {
    record(context, "<!--");
}

void onInstruction(void* context, const xmlChar*, const xmlChar*) {
    record(context, "<?");
}

void ignoreError(void*, xmlErrorPtr) {}

}  // namespace

std::vector<PassedOver> commentsAndInstructions(const std::wstring& text) {
    const std::string utf8 = kazcfg::utf8(text);
    Scan scan{.utf8 = utf8, .ctxt = nullptr, .found = {}};
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.comment = onComment;
    handler.processingInstruction = onInstruction;
    handler.serror = ignoreError;
    scan.ctxt = xmlCreatePushParserCtxt(&handler, nullptr, nullptr, 0, nullptr);
    if (scan.ctxt == nullptr) return {};
    scan.ctxt->_private = &scan;
    // The text is UTF-8 whatever its declaration says, as for the library.
    xmlCtxtUseOptions(scan.ctxt, XML_PARSE_NONET | XML_PARSE_IGNORE_ENC);
    xmlSwitchEncoding(scan.ctxt, XML_CHAR_ENCODING_UTF8);
    // In pieces: libxml2 refuses one huge chunk.
    constexpr std::size_t kChunk = 64 * 1024;
    for (std::size_t at = 0; at < utf8.size(); at += kChunk) {
        const std::size_t size = std::min(kChunk, utf8.size() - at);
        xmlParseChunk(scan.ctxt, utf8.data() + at, static_cast<int>(size),
                      at + size == utf8.size());
    }
    xmlFreeParserCtxt(scan.ctxt);
    return std::move(scan.found);
}

}  // namespace kazcfg
