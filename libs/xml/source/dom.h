#pragma once

#include <libxml/tree.h>

#include <memory>
#include <new>
#include <string>
#include <vector>

#include "kazxml/Document.h"

namespace kaz::xml {

namespace detail {

// Deleter of a libxml2 object for std::unique_ptr.
template <typename T, void (*Free)(T*)>
struct Freer {
    void operator()(T* p) const { Free(p); }
};

// Owns a parsed document.
struct DocumentTree {
    explicit DocumentTree(xmlDocPtr document) : doc(document) {}
    ~DocumentTree() { xmlFreeDoc(doc); }
    DocumentTree(const DocumentTree&) = delete;
    DocumentTree& operator=(const DocumentTree&) = delete;

    xmlDocPtr doc;
};

// Takes ownership of a document libxml2 made (null: out of memory).
inline std::shared_ptr<const DocumentTree> adopt(xmlDocPtr doc) {
    std::unique_ptr<xmlDoc, Freer<xmlDoc, xmlFreeDoc>> owned(doc);
    if (!owned) throw std::bad_alloc();
    auto tree = std::make_shared<const DocumentTree>(owned.get());
    owned.release();
    return tree;
}

// Owns a copy that belongs to no parent. The copy still points at its
// document (whose dictionary holds its names), so the document outlives it.
struct DetachedTree {
    DetachedTree(std::shared_ptr<const DocumentTree> document, xmlNodePtr copy)
        : tree(std::move(document)), root(copy) {}
    ~DetachedTree() { xmlFreeNode(root); }
    DetachedTree(const DetachedTree&) = delete;
    DetachedTree& operator=(const DetachedTree&) = delete;

    std::shared_ptr<const DocumentTree> tree;  // destroyed after root is freed
    xmlNodePtr root;
};

// What keeps a node's memory alive: its document and, for a node of a
// copy, that copy.
struct Owner {
    std::shared_ptr<const DocumentTree> tree;
    std::shared_ptr<const DetachedTree> detached;
};

// Visits the namespace declarations of `top` and of the elements below it.
template <typename Visit>
void forEachDeclaration(xmlNodePtr top, Visit&& visit) {
    for (xmlNodePtr node = top; node != nullptr;) {
        if (node->type == XML_ELEMENT_NODE)
            for (xmlNsPtr ns = node->nsDef; ns != nullptr; ns = ns->next) visit(ns);
        const bool container = node->type == XML_ELEMENT_NODE || node->type == XML_DOCUMENT_NODE;
        if (container && node->children != nullptr) {
            node = node->children;
            continue;
        }
        while (node != top && node->next == nullptr) node = node->parent;
        node = node == top ? nullptr : node->next;
    }
}

// A handle on `node`; null for a null node or one a handle cannot hold.
IXMLDOMNodePtr makeNode(const Owner& owner, xmlNodePtr node);

// Nodes selected by an XPath 1.0 expression from `context` (a node of `doc`
// or the document itself), in document order; at most `limit`.
std::vector<IXMLDOMNodePtr> select(const Owner& owner, xmlDocPtr doc, xmlNodePtr context,
                                   const std::wstring& expression, std::size_t limit);

// Markup of a node or document that loads again: characters as themselves,
// no XML declaration; an element declares the namespaces it uses.
std::wstring serialize(xmlNodePtr node);

}  // namespace detail

struct Node::Impl {
    detail::Owner owner;
    xmlNodePtr node;
};

}  // namespace kaz::xml
