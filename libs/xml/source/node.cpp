#include <libxml/xmlsave.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <cstdint>
#include <memory>
#include <new>

#include "dom.h"
#include "ioutils/TextCodec.h"
#include "kazxml/PlatformError.h"
#include "kazxml/Result.h"
#include "libxmlsupport.h"

namespace kaz::xml {
namespace detail {
namespace {

template <typename T, void (*Free)(T*)>
struct Freer {
    void operator()(T* p) const { Free(p); }
};
using XPathContext = std::unique_ptr<xmlXPathContext, Freer<xmlXPathContext, xmlXPathFreeContext>>;
using XPathObject = std::unique_ptr<xmlXPathObject, Freer<xmlXPathObject, xmlXPathFreeObject>>;
using Buffer = std::unique_ptr<xmlBuffer, Freer<xmlBuffer, xmlBufferFree>>;

std::wstring qualifiedName(const xmlChar* name, const xmlNs* ns) {
    if (ns == nullptr || ns->prefix == nullptr) return toWide(name);
    return toWide(ns->prefix) + L':' + toWide(name);
}

// libxml2's message of an invalid expression, kept for the exception.
void keepXPathError(void* userData, xmlErrorPtr error) {
    auto* message = static_cast<std::wstring*>(userData);
    if (error == nullptr || !message->empty()) return;
    try {
        *message = reportFrom(*error).message;
    } catch (...) {  // an allocation failure must not unwind through libxml2
        message->clear();
    }
}

[[noreturn]] void throwInvalid(const std::wstring& expression, const std::wstring& reason) {
    std::wstring message = L"invalid XPath expression \"" + expression + L"\"";
    if (!reason.empty()) message += L": " + reason;
    throw PlatformError(E_FAIL, message, L"XPath");
}

// Evaluates, or only compiles when there is no document to evaluate on.
XPathObject evaluate(xmlDocPtr doc, xmlNodePtr context, const std::wstring& expression) {
    if (expression.find(L'\0') != std::wstring::npos) throwInvalid(expression, L"null character");
    const std::string utf8 = ioutils::utf8FromWide(expression);
    std::wstring reason;
    XPathContext xpath(xmlXPathNewContext(doc));
    if (!xpath) throw PlatformError(E_OUTOFMEMORY, L"out of memory", L"XPath");
    xpath->error = keepXPathError;
    xpath->userData = &reason;
    if (doc == nullptr) {
        xmlXPathCompExprPtr compiled = xmlXPathCtxtCompile(xpath.get(), asXmlChars(utf8));
        if (compiled == nullptr) throwInvalid(expression, reason);
        xmlXPathFreeCompExpr(compiled);
        return nullptr;
    }
    xpath->node = context;
    XPathObject result(xmlXPathEval(asXmlChars(utf8), xpath.get()));
    if (!result) throwInvalid(expression, reason);
    return result;
}

}  // namespace

IXMLDOMNodePtr makeNode(const Owner& owner, xmlNodePtr node) {
    // Namespace nodes of a result are copies freed with the result.
    if (node == nullptr || node->type == XML_NAMESPACE_DECL) return nullptr;
    return std::make_shared<Node>(std::make_unique<Node::Impl>(Node::Impl{owner, node}));
}

std::vector<IXMLDOMNodePtr> select(const Owner& owner, xmlDocPtr doc, xmlNodePtr context,
                                   const std::wstring& expression, std::size_t limit) {
    std::vector<IXMLDOMNodePtr> nodes;
    const XPathObject result = evaluate(doc, context, expression);
    if (!result || result->type != XPATH_NODESET || result->nodesetval == nullptr) return nodes;
    xmlNodeSetPtr set = result->nodesetval;
    xmlXPathNodeSetSort(set);
    for (int i = 0; i < set->nodeNr && nodes.size() < limit; ++i)
        if (IXMLDOMNodePtr node = makeNode(owner, set->nodeTab[i])) nodes.push_back(node);
    return nodes;
}

std::wstring serialize(xmlNodePtr node) {
    Buffer buffer(xmlBufferCreate());
    if (!buffer) throw std::bad_alloc();
    xmlSaveCtxtPtr save = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL);
    if (save == nullptr) throw std::bad_alloc();
    if (node->type == XML_DOCUMENT_NODE)
        xmlSaveDoc(save, reinterpret_cast<xmlDocPtr>(node));
    else
        xmlSaveTree(save, node);
    xmlSaveClose(save);
    return toWide(xmlBufferContent(buffer.get()), static_cast<std::size_t>(xmlBufferLength(buffer.get())));
}

}  // namespace detail

namespace {

// Free with xmlFree.
std::wstring takeText(xmlChar* text) {
    std::unique_ptr<xmlChar, void (*)(void*)> owned(text, [](void* p) { xmlFree(p); });
    return detail::toWide(text);
}

std::wstring attributeValue(xmlAttrPtr attribute) {
    return takeText(xmlNodeGetContent(reinterpret_cast<xmlNodePtr>(attribute)));
}

}  // namespace

Node::Node(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Node::~Node() = default;

Node::Type Node::type() const {
    switch (impl_->node->type) {
        case XML_ELEMENT_NODE:
            return Type::Element;
        case XML_TEXT_NODE:
            return Type::Text;
        case XML_CDATA_SECTION_NODE:
            return Type::CData;
        case XML_COMMENT_NODE:
            return Type::Comment;
        case XML_PI_NODE:
            return Type::ProcessingInstruction;
        default:
            return Type::Other;
    }
}

std::wstring Node::nodeName() const {
    const xmlNode* node = impl_->node;
    switch (node->type) {
        case XML_ELEMENT_NODE:
        case XML_ATTRIBUTE_NODE:
            return detail::qualifiedName(node->name, node->ns);
        case XML_TEXT_NODE:
            return L"#text";
        case XML_CDATA_SECTION_NODE:
            return L"#cdata-section";
        case XML_COMMENT_NODE:
            return L"#comment";
        case XML_DOCUMENT_NODE:
            return L"#document";
        default:  // a processing instruction answers its target
            return detail::toWide(node->name);
    }
}

IXMLDOMNodePtr Node::parentNode() const { return detail::makeNode(impl_->owner, impl_->node->parent); }

IXMLDOMNodePtr Node::firstChild() const {
    return detail::makeNode(impl_->owner, impl_->node->children);
}

IXMLDOMNodePtr Node::nextSibling() const { return detail::makeNode(impl_->owner, impl_->node->next); }

std::vector<IXMLDOMNodePtr> Node::childNodes() const {
    std::vector<IXMLDOMNodePtr> children;
    for (xmlNodePtr child = impl_->node->children; child != nullptr; child = child->next)
        children.push_back(detail::makeNode(impl_->owner, child));
    return children;
}

std::wstring Node::text() const { return takeText(xmlNodeGetContent(impl_->node)); }

std::wstring Node::xml() const { return detail::serialize(impl_->node); }

std::optional<std::wstring> Node::attribute(const std::wstring& qName) const {
    for (const auto& [name, value] : attributes())
        if (name == qName) return value;
    return std::nullopt;
}

std::vector<std::pair<std::wstring, std::wstring>> Node::attributes() const {
    std::vector<std::pair<std::wstring, std::wstring>> result;
    const xmlNode* node = impl_->node;
    if (node->type != XML_ELEMENT_NODE) return result;
    // Namespace declarations first, as the SAX reader reports them.
    for (const xmlNs* ns = node->nsDef; ns != nullptr; ns = ns->next) {
        std::wstring name = ns->prefix != nullptr ? L"xmlns:" + detail::toWide(ns->prefix) : L"xmlns";
        result.emplace_back(std::move(name), detail::toWide(ns->href));
    }
    for (xmlAttrPtr a = node->properties; a != nullptr; a = a->next)
        result.emplace_back(detail::qualifiedName(a->name, a->ns), attributeValue(a));
    return result;
}

IXMLDOMNodePtr Node::cloneNode(bool deep) const {
    xmlNodePtr node = impl_->node;
    if (node->type == XML_DOCUMENT_NODE) {
        xmlDocPtr copy = xmlCopyDoc(reinterpret_cast<xmlDocPtr>(node), deep ? 1 : 0);
        if (copy == nullptr) throw std::bad_alloc();
        detail::Owner owner{std::make_shared<const detail::DocumentTree>(copy), nullptr};
        return detail::makeNode(owner, reinterpret_cast<xmlNodePtr>(copy));
    }
    // 2: the element with its attributes and namespaces, without children.
    std::unique_ptr<xmlNode, detail::Freer<xmlNode, xmlFreeNode>> copy(
        xmlDocCopyNode(node, node->doc, deep ? 1 : 2));
    if (!copy) throw std::bad_alloc();
    auto detached = std::make_shared<const detail::DetachedTree>(impl_->owner.tree, copy.get());
    return detail::makeNode({impl_->owner.tree, std::move(detached)}, copy.release());
}

IXMLDOMNodePtr Node::selectSingleNode(const std::wstring& xpath) const {
    std::vector<IXMLDOMNodePtr> nodes =
        detail::select(impl_->owner, impl_->node->doc, impl_->node, xpath, 1);
    return nodes.empty() ? nullptr : nodes.front();
}

std::vector<IXMLDOMNodePtr> Node::selectNodes(const std::wstring& xpath) const {
    return detail::select(impl_->owner, impl_->node->doc, impl_->node, xpath, SIZE_MAX);
}

}  // namespace kaz::xml
