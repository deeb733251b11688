#include <libxml/SAX2.h>
#include <libxml/parser.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "ioutils/TextCodec.h"
#include "kazxml/SAX.h"
#include "libxmlsupport.h"
#include "saxattributes.h"

namespace kaz::xml {
namespace {

using detail::ErrorReport;
using detail::toWide;

std::wstring hex(long code) {
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"0x%08lX",
                  static_cast<unsigned long>(code) & 0xFFFFFFFFul);
    return text;
}

// Line and column of places in the text, asked for in increasing order so
// that a whole parse reads the text once. libxml2 counts UTF-8 bytes; the
// text is wide, one character per wchar_t. Line breaks are "\n", "\r\n"
// and "\r".
class TextPositions {
public:
    explicit TextPositions(std::wstring_view text)
        : text_(text), nextWide_(nextWideFrom(0)), lines_(text) {}

    // The position of the last "<" before UTF-8 byte `end`.
    std::pair<int, int> tagStartBefore(std::size_t end) {
        mapBytes(end);
        const std::size_t tag = lastTagOpenBefore(characters_);
        if (tag != text_.npos) lines_.advanceTo(tag);
        return {lines_.line(), lines_.column()};
    }

private:
    // Moves the (characters, bytes) pair up to `end` bytes. A run of ASCII
    // takes a byte a character, so only the other characters are measured.
    void mapBytes(std::size_t end) {
        while (bytes_ < end && characters_ < text_.size()) {
            if (characters_ == nextWide_) {
                bytes_ +=
                    ioutils::utf8Length(text_[characters_++], ioutils::Unencodable::KeepValue);
                nextWide_ = nextWideFrom(characters_);
            } else {
                const std::size_t run = std::min(nextWide_ - characters_, end - bytes_);
                characters_ += run;
                bytes_ += run;
            }
        }
    }

    // The last "<" before `end`, or npos; whole blocks are tested at once.
    std::size_t lastTagOpenBefore(std::size_t end) const {
        std::size_t at = end;
        while (at >= ioutils::kBlock && !holdsTagOpen(text_.data() + at - ioutils::kBlock))
            at -= ioutils::kBlock;
        return at == 0 ? text_.npos : text_.rfind(L'<', at - 1);
    }

    static bool holdsTagOpen(const wchar_t* block) {
        // A unit equal to "<" is the one whose XOR with it is zero.
        return ioutils::orOverBlock(block,
                                    [](auto units) {
                                        const auto difference =
                                            units ^ static_cast<std::uint32_t>(L'<');
                                        return (difference - 1u) & ~difference;
                                    }) >>
               31;
    }

    // The first character at or after `from` that is not ASCII; whole
    // blocks are tested at once.
    std::size_t nextWideFrom(std::size_t from) const {
        std::size_t at = from;
        while (at + ioutils::kBlock <= text_.size() && ioutils::asciiBlock(text_.data() + at))
            at += ioutils::kBlock;
        while (at < text_.size() && static_cast<char32_t>(text_[at]) < 0x80) ++at;
        return at;
    }

    std::wstring_view text_;
    std::size_t characters_ = 0;  // the characters that make up the first
    std::size_t bytes_ = 0;       // `bytes_` bytes of UTF-8
    std::size_t nextWide_;        // the next character that is not ASCII
    detail::LinePosition lines_;
};

// Answers the parser's current position, or that of the error being
// reported; during startElement also where the start tag begins.
class Locator final : public ISAXLocator, public IStartTagLocator {
public:
    void attach(const xmlParserCtxt* ctxt) { ctxt_ = ctxt; }
    void pin(const ErrorReport* report) { pinned_ = report; }
    void setStartTag(std::optional<std::pair<int, int>> position) { startTag_ = position; }

    long getStartTagPosition(int* line, int* column) override {
        if (line == nullptr || column == nullptr) return E_POINTER;
        if (!startTag_) return E_UNEXPECTED;
        std::tie(*line, *column) = *startTag_;
        return S_OK;
    }

    long getColumnNumber(int* column) override {
        if (column == nullptr) return E_POINTER;
        *column = pinned_ != nullptr ? pinned_->column : detail::currentColumn(ctxt_);
        return S_OK;
    }
    long getLineNumber(int* line) override {
        if (line == nullptr) return E_POINTER;
        *line = pinned_ != nullptr ? pinned_->line : detail::currentLine(ctxt_);
        return S_OK;
    }
    // Text in memory has neither identifier.
    long getPublicId(const wchar_t** publicId) override { return none(publicId); }
    long getSystemId(const wchar_t** systemId) override { return none(systemId); }

private:
    static long none(const wchar_t** id) {
        if (id == nullptr) return E_POINTER;
        *id = L"";
        return S_OK;
    }

    const xmlParserCtxt* ctxt_ = nullptr;
    const ErrorReport* pinned_ = nullptr;
    std::optional<std::pair<int, int>> startTag_;
};

// A parser context with the names its dictionary holds, kept by each thread
// from one parse to the next: making a context and converting the same
// names again is most of what a small text costs. It is kept only after a
// parse that ended well, and only while its dictionary stays small.
struct ReusableParser {
    xmlParserCtxtPtr ctxt = nullptr;
    detail::NameCache names;

    ReusableParser() = default;
    ReusableParser(const ReusableParser&) = delete;
    ReusableParser& operator=(const ReusableParser&) = delete;
    ~ReusableParser() { xmlFreeParserCtxt(ctxt); }
};

constexpr int kMostNamesKept = 4096;
thread_local std::unique_ptr<ReusableParser> spareParser;

// One parse: the libxml2 push parser context and everything its callbacks
// need (reached through the context's user data). No exception ever leaves a
// callback into libxml2; it is kept and rethrown once the context is put
// aside.
class ParseSession {
public:
    ParseSession(ISAXContentHandler* content, ISAXErrorHandler* errors, std::wstring_view text)
        : content_(content), errors_(errors), text_(text), positions_(text) {}
    ~ParseSession() {
        if (ctxt_ == nullptr) return;
        // Once SAX is off, libxml2 may build a document of its own to keep
        // the declarations it still reads (after a version or namespace error).
        xmlFreeDoc(std::exchange(ctxt_->myDoc, nullptr));
        if (!ended_ && ctxt_->wellFormed != 0 && xmlDictSize(ctxt_->dict) <= kMostNamesKept)
            spareParser = std::move(parser_);
    }
    ParseSession(const ParseSession&) = delete;
    ParseSession& operator=(const ParseSession&) = delete;

    long run();
    std::exception_ptr exception() const { return exception_; }
    const std::wstring& description() const { return description_; }

private:
    static xmlSAXHandler makeHandler();
    static ParseSession& of(void* userData) { return *static_cast<ParseSession*>(userData); }

    bool open();
    void finish();

    // Runs one content event: a failure code or an exception ends the parse.
    template <typename Event>
    void deliver(Event&& event);
    // Runs body unless the parse has ended; halts libxml2 if it ends it.
    template <typename Body>
    void inCallback(Body&& body);
    template <typename Body>
    void guarded(Body&& body);

    void startElement(const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                      int namespaceCount, const xmlChar** namespaces, int attributeCount,
                      const xmlChar** attributes);
    void mapPrefixes(int namespaceCount, const xmlChar** namespaces);
    void endElement(const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri);
    void characters(const xmlChar* text, int length);
    void refuse(long code);
    void report(const ErrorReport& report, xmlErrorLevel level);
    long callErrorHandler(const ErrorReport& report, xmlErrorLevel level);
    void fail(long code, std::wstring_view description) noexcept;

    static void onStartDocument(void* userData);
    static void onStartElement(void* userData, const xmlChar* localName, const xmlChar* prefix,
                               const xmlChar* uri, int namespaceCount, const xmlChar** namespaces,
                               int attributeCount, int defaultedCount, const xmlChar** attributes);
    static void onEndElement(void* userData, const xmlChar* localName, const xmlChar* prefix,
                             const xmlChar* uri);
    static void onCharacters(void* userData, const xmlChar* text, int length);
    static void onProcessingInstruction(void* userData, const xmlChar* target, const xmlChar* data);
    static void onInternalSubset(void* userData, const xmlChar* name, const xmlChar* externalId,
                                 const xmlChar* systemId);
    static void onError(void* userData, xmlErrorPtr error);

    std::unique_ptr<ReusableParser> parser_;
    xmlParserCtxtPtr ctxt_ = nullptr;  // the parser's
    ISAXContentHandler* content_;
    ISAXErrorHandler* errors_;
    std::wstring_view text_;
    TextPositions positions_;
    Locator locator_;
    detail::SAXAttributes attributes_;
    // Prefixes declared by each open element, for endPrefixMapping.
    std::vector<std::vector<const std::wstring*>> prefixes_;
    std::wstring characters_;  // the characters being reported
    int depth_ = 0;
    bool ended_ = false;  // by a failure, an exception or a refusal
    long result_ = S_OK;
    std::wstring description_;
    std::exception_ptr exception_;
};

xmlSAXHandler ParseSession::makeHandler() {
    // Only what we report; without getEntity, entityDecl or the default
    // handlers no entity is ever declared, loaded or expanded.
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startDocument = onStartDocument;
    handler.startElementNs = onStartElement;
    handler.endElementNs = onEndElement;
    handler.characters = onCharacters;
    handler.cdataBlock = onCharacters;
    handler.processingInstruction = onProcessingInstruction;
    handler.internalSubset = onInternalSubset;
    handler.serror = onError;
    return handler;
}

long ParseSession::run() {
    if (!open()) return E_OUTOFMEMORY;
    if (content_ != nullptr) deliver([&] { return content_->putDocumentLocator(&locator_); });
    if (detail::blank(text_)) {
        // libxml2 calls an empty text "extra content"; say what it is.
        if (!ended_) report(detail::emptyDocument(), XML_ERR_FATAL);
    } else {
        if (auto refusal = detail::feedPushParser(ctxt_, text_, ended_))
            report(*refusal, XML_ERR_FATAL);
    }
    finish();
    return result_;
}

bool ParseSession::open() {
    // Errors the context raises while it is reset or made come to this
    // session, never to the one that used it before.
    parser_ = std::move(spareParser);
    if (parser_ != nullptr) {
        parser_->ctxt->userData = this;
        if (!detail::resetPushParser(parser_->ctxt)) parser_.reset();
    }
    if (parser_ == nullptr) {
        auto made = std::make_unique<ReusableParser>();
        made->ctxt = detail::openPushParser(makeHandler(), this);
        if (made->ctxt == nullptr) return false;
        made->names.attach(made->ctxt->dict);
        parser_ = std::move(made);
    }
    ctxt_ = parser_->ctxt;
    ctxt_->userData = this;
    locator_.attach(ctxt_);
    return true;
}

void ParseSession::finish() {
    if (!ended_ && ctxt_->wellFormed == 0) {
        // A fatal error that did not reach us as such.
        ErrorReport last = detail::reportFrom(ctxt_->lastError);
        last.code = XML_E_PARSE_BASE + ctxt_->errNo;
        fail(last.code, detail::describe(last));
    }
    if (!ended_ && content_ != nullptr) deliver([&] { return content_->endDocument(); });
}

template <typename Body>
void ParseSession::guarded(Body&& body) {
    try {
        body();
    } catch (...) {
        exception_ = std::current_exception();
        fail(E_FAIL, L"a handler threw an exception");
    }
}

template <typename Body>
void ParseSession::inCallback(Body&& body) {
    if (ended_) return;
    guarded(body);
    if (ended_) xmlStopParser(ctxt_);
}

template <typename Event>
void ParseSession::deliver(Event&& event) {
    if (ended_ || content_ == nullptr) return;
    guarded([&] {
        const long result = event();
        if (failed(result)) {
            const ErrorReport here{result, detail::currentLine(ctxt_), detail::currentColumn(ctxt_),
                                   L"the content handler answered " + hex(result)};
            fail(result, detail::describe(here));
        }
    });
}

void ParseSession::fail(long code, std::wstring_view description) noexcept {
    if (result_ == S_OK) {
        result_ = code;
        try {
            description_.assign(description);
        } catch (...) {  // runs inside libxml2's frames: no exception may leave
        }
    }
    // Ends SAX events at once; the parser itself is halted by the callback
    // that ended the parse (never from inside libxml2's error reporting).
    ended_ = true;
    if (ctxt_ != nullptr) ctxt_->disableSAX = 1;
}

void ParseSession::startElement(const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                                int namespaceCount, const xmlChar** namespaces, int attributeCount,
                                const xmlChar** attributes) {
    if (const long refusal = detail::startTagRefusal(ctxt_, ++depth_); refusal != S_OK)
        return refuse(refusal);
    if (content_ == nullptr) return;
    mapPrefixes(namespaceCount, namespaces);
    attributes_.assign(parser_->names, namespaceCount, namespaces, attributeCount, attributes);
    const std::wstring& ns = parser_->names.namespaceName(uri);
    const detail::WideName& name = parser_->names.name(prefix, localName);
    // libxml2 reports a start tag once it has read it: its "<" lies before.
    locator_.setStartTag(
        positions_.tagStartBefore(static_cast<std::size_t>(xmlByteConsumed(ctxt_))));
    deliver([&] {
        return content_->startElement(ns.c_str(), static_cast<int>(ns.size()),
                                      name.localName.c_str(),
                                      static_cast<int>(name.localName.size()), name.qName.c_str(),
                                      static_cast<int>(name.qName.size()), &attributes_);
    });
    locator_.setStartTag(std::nullopt);
}

void ParseSession::mapPrefixes(int namespaceCount, const xmlChar** namespaces) {
    std::vector<const std::wstring*>& declared = prefixes_.emplace_back();
    for (int i = 0; i < namespaceCount && !ended_; ++i) {
        const std::wstring& prefix = parser_->names.name(nullptr, namespaces[2 * i]).localName;
        declared.push_back(&prefix);
        const std::wstring& uri = parser_->names.namespaceName(namespaces[2 * i + 1]);
        deliver([&] {
            return content_->startPrefixMapping(prefix.c_str(), static_cast<int>(prefix.size()),
                                                uri.c_str(), static_cast<int>(uri.size()));
        });
    }
}

void ParseSession::endElement(const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri) {
    --depth_;
    if (content_ == nullptr) return;
    const std::wstring& ns = parser_->names.namespaceName(uri);
    const detail::WideName& name = parser_->names.name(prefix, localName);
    deliver([&] {
        return content_->endElement(ns.c_str(), static_cast<int>(ns.size()), name.localName.c_str(),
                                    static_cast<int>(name.localName.size()), name.qName.c_str(),
                                    static_cast<int>(name.qName.size()));
    });
    if (prefixes_.empty()) return;
    for (const std::wstring* prefix : prefixes_.back())
        deliver([&] {
            return content_->endPrefixMapping(prefix->c_str(), static_cast<int>(prefix->size()));
        });
    prefixes_.pop_back();
}

void ParseSession::characters(const xmlChar* text, int length) {
    ioutils::assignWideFromUtf8(characters_, std::string_view(reinterpret_cast<const char*>(text),
                                                              static_cast<std::size_t>(length)));
    deliver([&] {
        return content_->characters(characters_.c_str(), static_cast<int>(characters_.size()));
    });
}

void ParseSession::refuse(long code) {
    report(detail::refusalAt(ctxt_, code), XML_ERR_FATAL);
}

void ParseSession::report(const ErrorReport& report, xmlErrorLevel level) {
    if (level == XML_ERR_FATAL) fail(report.code, detail::describe(report));
    if (errors_ == nullptr) return;
    locator_.pin(&report);
    guarded([&] {
        const long answer = callErrorHandler(report, level);
        if (failed(answer)) fail(answer, detail::describe(report));
    });
    locator_.pin(nullptr);
}

long ParseSession::callErrorHandler(const ErrorReport& report, xmlErrorLevel level) {
    const wchar_t* message = report.message.c_str();
    switch (level) {
        case XML_ERR_WARNING:
            return errors_->ignorableWarning(&locator_, message, report.code);
        case XML_ERR_ERROR:
            return errors_->error(&locator_, message, report.code);
        default:
            return errors_->fatalError(&locator_, message, report.code);
    }
}

void ParseSession::onStartDocument(void* userData) {
    ParseSession& session = of(userData);
    session.inCallback([&] { session.deliver([&] { return session.content_->startDocument(); }); });
}

void ParseSession::onStartElement(void* userData, const xmlChar* localName, const xmlChar* prefix,
                                  const xmlChar* uri, int namespaceCount,
                                  const xmlChar** namespaces, int attributeCount, int,
                                  const xmlChar** attributes) {
    ParseSession& session = of(userData);
    session.inCallback([&] {
        session.startElement(localName, prefix, uri, namespaceCount, namespaces, attributeCount,
                             attributes);
    });
}

void ParseSession::onEndElement(void* userData, const xmlChar* localName, const xmlChar* prefix,
                                const xmlChar* uri) {
    ParseSession& session = of(userData);
    session.inCallback([&] { session.endElement(localName, prefix, uri); });
}

void ParseSession::onCharacters(void* userData, const xmlChar* text, int length) {
    ParseSession& session = of(userData);
    if (session.content_ == nullptr) return;
    session.inCallback([&] { session.characters(text, length); });
}

void ParseSession::onProcessingInstruction(void* userData, const xmlChar* target,
                                           const xmlChar* data) {
    ParseSession& session = of(userData);
    if (session.content_ == nullptr) return;
    session.inCallback([&] {
        const std::wstring name = toWide(target);
        const std::wstring text = toWide(data);
        session.deliver([&] {
            return session.content_->processingInstruction(
                name.c_str(), static_cast<int>(name.size()), text.c_str(),
                static_cast<int>(text.size()));
        });
    });
}

void ParseSession::onInternalSubset(void* userData, const xmlChar*, const xmlChar*,
                                    const xmlChar*) {
    ParseSession& session = of(userData);
    // Whatever the handler answers, a document type declaration ends the parse.
    session.inCallback([&] { session.refuse(XML_E_DTD_PROHIBITED); });
}

void ParseSession::onError(void* userData, xmlErrorPtr error) {
    ParseSession& session = of(userData);
    if (session.ended_ || error == nullptr) return;
    // Only flags from here: halting libxml2 inside its own error reporting
    // would free input it may still be reading.
    session.guarded([&] { session.report(detail::reportFrom(*error), detail::severity(*error)); });
}

}  // namespace

SAXXMLReader::SAXXMLReader() = default;
SAXXMLReader::~SAXXMLReader() = default;

long SAXXMLReader::putContentHandler(ISAXContentHandler* handler) {
    contentHandler_ = handler;
    return S_OK;
}

long SAXXMLReader::putErrorHandler(ISAXErrorHandler* handler) {
    errorHandler_ = handler;
    return S_OK;
}

long SAXXMLReader::parse(const std::wstring& text) {
    errorDescription_.clear();
    long result = S_OK;
    std::exception_ptr exception;
    {
        ParseSession session(contentHandler_, errorHandler_, detail::textForParser(text));
        result = session.run();
        exception = session.exception();
        errorDescription_ = session.description();
    }  // the parser context is freed here, before any exception goes on
    if (exception) std::rethrow_exception(exception);
    return result;
}

const std::wstring& SAXXMLReader::getErrorDescription() const {
    return errorDescription_;
}

}  // namespace kaz::xml
