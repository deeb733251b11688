#include <cstdint>
#include <memory>
#include <new>

#include "dom.h"
#include "libxmlsupport.h"

namespace kaz::xml {
namespace detail {
namespace {

std::wstring nameIn(const xmlChar* name, const xmlNs* ns) {
    return qualifiedName(ns != nullptr ? ns->prefix : nullptr, name);
}

}  // namespace

IXMLDOMNodePtr makeNode(const Owner& owner, xmlNodePtr node) {
    // Namespace nodes of a result are copies freed with the result.
    if (node == nullptr || node->type == XML_NAMESPACE_DECL) return nullptr;
    return std::make_shared<Node>(std::make_unique<Node::Impl>(Node::Impl{owner, node}));
}

}  // namespace detail

namespace {

// Takes a text libxml2 allocated for us.
std::wstring takeText(xmlChar* text) {
    std::unique_ptr<xmlChar, void (*)(void*)> owned(text, [](void* p) { xmlFree(p); });
    return detail::toWide(text);
}

std::wstring valueOf(xmlAttrPtr attribute) {
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
            return detail::nameIn(node->name, node->ns);
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

IXMLDOMNodePtr Node::parentNode() const {
    return detail::makeNode(impl_->owner, impl_->node->parent);
}

IXMLDOMNodePtr Node::firstChild() const {
    return detail::makeNode(impl_->owner, impl_->node->children);
}

IXMLDOMNodePtr Node::nextSibling() const {
    return detail::makeNode(impl_->owner, impl_->node->next);
}

std::vector<IXMLDOMNodePtr> Node::childNodes() const {
    std::vector<IXMLDOMNodePtr> children;
    for (xmlNodePtr child = impl_->node->children; child != nullptr; child = child->next)
        children.push_back(detail::makeNode(impl_->owner, child));
    return children;
}

std::wstring Node::text() const {
    return takeText(xmlNodeGetContent(impl_->node));
}

std::wstring Node::xml() const {
    return detail::serialize(impl_->node);
}

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
        std::wstring name =
            ns->prefix != nullptr ? L"xmlns:" + detail::toWide(ns->prefix) : L"xmlns";
        result.emplace_back(std::move(name), detail::toWide(ns->href));
    }
    for (xmlAttrPtr a = node->properties; a != nullptr; a = a->next)
        result.emplace_back(detail::nameIn(a->name, a->ns), valueOf(a));
    return result;
}

IXMLDOMNodePtr Node::cloneNode(bool deep) const {
    xmlNodePtr node = impl_->node;
    if (node->type == XML_DOCUMENT_NODE) {
        detail::Owner owner{detail::adopt(xmlCopyDoc(reinterpret_cast<xmlDocPtr>(node), deep)),
                            nullptr};
        return detail::makeNode(owner, reinterpret_cast<xmlNodePtr>(owner.tree->doc));
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
