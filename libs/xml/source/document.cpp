#include <libxml/SAX2.h>
#include <libxml/parser.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

#include "dom.h"
#include "kazxml/SAX.h"
#include "libxmlsupport.h"

namespace kaz::xml {
namespace {

using detail::ErrorReport;

// The state of one load, reached through the parser context's _private
// (libxml2's tree builder needs the context itself as user data).
struct LoadState {
    int depth = 0;
    bool failed = false;
    ErrorReport failure;  // the first fatal error or refusal

    static LoadState& of(void* ctx) {
        return *static_cast<LoadState*>(static_cast<xmlParserCtxtPtr>(ctx)->_private);
    }

    // These never throw: they run inside libxml2's C frames. A message that
    // cannot be allocated is left out.
    bool begin(long code, int line, int column) noexcept {
        if (failed) return false;
        failed = true;
        failure.code = code;
        failure.line = line;
        failure.column = column;
        return true;
    }

    void record(const xmlError& error) noexcept {
        if (!begin(XML_E_PARSE_BASE + error.code, error.line, error.int2)) return;
        try {
            failure.message = detail::reportFrom(error).message;
        } catch (...) {
        }
    }

    void refuse(ErrorReport refusal) {
        failed = true;
        failure = std::move(refusal);
    }

    void refuse(xmlParserCtxtPtr ctxt, long code) noexcept {
        if (begin(code, detail::currentLine(ctxt), detail::currentColumn(ctxt))) {
            try {
                failure.message = detail::refusalAt(ctxt, code).message;
            } catch (...) {
            }
        }
        xmlStopParser(ctxt);
    }
};

void onInternalSubset(void* ctx, const xmlChar*, const xmlChar*, const xmlChar*) {
    LoadState::of(ctx).refuse(static_cast<xmlParserCtxtPtr>(ctx), XML_E_DTD_PROHIBITED);
}

void onStartElement(void* ctx, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                    int namespaceCount, const xmlChar** namespaces, int attributeCount,
                    int defaultedCount, const xmlChar** attributes) {
    LoadState& state = LoadState::of(ctx);
    const auto ctxt = static_cast<xmlParserCtxtPtr>(ctx);
    if (const long refusal = detail::startTagRefusal(ctxt, ++state.depth); refusal != S_OK)
        return state.refuse(ctxt, refusal);
    xmlSAX2StartElementNs(ctx, localName, prefix, uri, namespaceCount, namespaces, attributeCount,
                          defaultedCount, attributes);
}

void onEndElement(void* ctx, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri) {
    --LoadState::of(ctx).depth;
    xmlSAX2EndElementNs(ctx, localName, prefix, uri);
}

void onError(void* ctx, xmlErrorPtr error) {
    if (error == nullptr || detail::severity(*error) != XML_ERR_FATAL) return;
    if (static_cast<xmlParserCtxtPtr>(ctx)->_private == nullptr) return;  // not parsing yet
    LoadState::of(ctx).record(*error);
}

// libxml2's tree builder, minus everything that touches a DTD or an entity
// declaration; errors come to us only.
xmlSAXHandler treeBuilder() {
    xmlSAXHandler sax{};
    xmlSAXVersion(&sax, 2);
    sax.internalSubset = onInternalSubset;
    sax.externalSubset = nullptr;
    sax.resolveEntity = nullptr;
    sax.getEntity = nullptr;
    sax.getParameterEntity = nullptr;
    sax.entityDecl = nullptr;
    sax.notationDecl = nullptr;
    sax.attributeDecl = nullptr;
    sax.elementDecl = nullptr;
    sax.unparsedEntityDecl = nullptr;
    sax.startElementNs = onStartElement;
    sax.endElementNs = onEndElement;
    sax.warning = nullptr;
    sax.error = nullptr;
    sax.fatalError = nullptr;
    sax.serror = onError;
    return sax;
}

// The tree builder keeps namespace names as libxml2 delivers them, each "&"
// written "&#38;"; give them their real value.
void restoreNamespaceNames(xmlDocPtr doc) {
    detail::forEachDeclaration(reinterpret_cast<xmlNodePtr>(doc), [](xmlNsPtr ns) {
        const auto* href = reinterpret_cast<const char*>(ns->href);
        if (href == nullptr || std::strchr(href, '&') == nullptr) return;
        xmlChar* value = xmlStrdup(BAD_CAST detail::decodeAmpersands(href).c_str());
        if (value == nullptr) throw std::bad_alloc();
        xmlFree(const_cast<xmlChar*>(ns->href));
        ns->href = value;
    });
}

struct ContextFree {
    void operator()(xmlParserCtxtPtr ctxt) const { xmlFreeParserCtxt(ctxt); }
};

// The parsed tree, or null with `state.failure` telling why.
std::shared_ptr<const detail::DocumentTree> load(std::wstring_view text, LoadState& state) {
    if (detail::blank(text)) {
        state.failed = true;
        state.failure = detail::emptyDocument();
        return nullptr;
    }
    // The same push parser as the SAX reader's, so both judge a text alike.
    std::unique_ptr<xmlParserCtxt, ContextFree> ctxt(
        detail::openPushParser(treeBuilder(), nullptr));
    if (!ctxt) throw std::bad_alloc();
    ctxt->_private = &state;
    if (auto refusal = detail::feedPushParser(ctxt.get(), text, state.failed))
        state.refuse(std::move(*refusal));
    xmlDocPtr doc = std::exchange(ctxt->myDoc, nullptr);
    if (doc != nullptr && !state.failed && ctxt->wellFormed) {
        auto tree = detail::adopt(doc);
        restoreNamespaceNames(doc);
        // Lets the serializer write characters as themselves in attribute values too.
        if (doc->encoding == nullptr) doc->encoding = xmlStrdup(BAD_CAST "UTF-8");
        return tree;
    }
    xmlFreeDoc(doc);
    // A failure that did not reach us as a fatal error.
    if (!state.failed) state.record(ctxt->lastError);
    return nullptr;
}

}  // namespace

struct Document::Impl {
    std::shared_ptr<const detail::DocumentTree> tree;
    ParseErrorInfo error;

    detail::Owner owner() const { return {tree, nullptr}; }
    xmlNodePtr root() const { return reinterpret_cast<xmlNodePtr>(tree->doc); }

    // Without content, on an empty document: the expression is still checked.
    std::vector<IXMLDOMNodePtr> select(const std::wstring& xpath, std::size_t limit) const {
        if (tree) return detail::select(owner(), tree->doc, root(), xpath, limit);
        const detail::Owner empty{detail::adopt(xmlNewDoc(BAD_CAST "1.0")), nullptr};
        xmlDocPtr doc = empty.tree->doc;
        return detail::select(empty, doc, reinterpret_cast<xmlNodePtr>(doc), xpath, limit);
    }
};

Document::Document() : impl_(std::make_shared<Impl>()) {}
Document::~Document() = default;

IXMLDOMDocument2Ptr Document::create() {
    return IXMLDOMDocument2Ptr(new Document());
}

bool Document::loadXML(const std::wstring& text) {
    impl_->tree.reset();
    impl_->error = ParseErrorInfo();
    LoadState state;
    impl_->tree = load(detail::textForParser(text), state);
    if (impl_->tree) return true;
    const ErrorReport& failure = state.failure;
    impl_->error = {failure.code, failure.line, failure.column, failure.message};
    return false;
}

const ParseErrorInfo& Document::parseError() const {
    return impl_->error;
}

IXMLDOMNodePtr Document::documentElement() const {
    if (!impl_->tree) return nullptr;
    return detail::makeNode(impl_->owner(), xmlDocGetRootElement(impl_->tree->doc));
}

IXMLDOMNodePtr Document::selectSingleNode(const std::wstring& xpath) const {
    std::vector<IXMLDOMNodePtr> nodes = impl_->select(xpath, 1);
    return nodes.empty() ? nullptr : nodes.front();
}

std::vector<IXMLDOMNodePtr> Document::selectNodes(const std::wstring& xpath) const {
    return impl_->select(xpath, SIZE_MAX);
}

std::wstring Document::xml() const {
    return impl_->tree ? detail::serialize(impl_->root()) : std::wstring();
}

}  // namespace kaz::xml
