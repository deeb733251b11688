#pragma once

#include <libxml/tree.h>

#include <memory>
#include <string>
#include <vector>

#include "kazxml/Document.h"

namespace kaz::xml {

namespace detail {

// Owns a parsed document.
struct DocumentTree {
    explicit DocumentTree(xmlDocPtr document) : doc(document) {}
    ~DocumentTree() { xmlFreeDoc(doc); }
    DocumentTree(const DocumentTree&) = delete;
    DocumentTree& operator=(const DocumentTree&) = delete;

    xmlDocPtr doc;
};

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

// A handle on `node`; null for a null node or one a handle cannot hold.
IXMLDOMNodePtr makeNode(const Owner& owner, xmlNodePtr node);

// Nodes selected by an XPath 1.0 expression from `context` (a node of `doc`
// or the document itself), in document order; at most `limit`.
std::vector<IXMLDOMNodePtr> select(const Owner& owner, xmlDocPtr doc, xmlNodePtr context,
                                   const std::wstring& expression, std::size_t limit);

// Markup of a node or document: UTF-8 characters as themselves, no declaration.
std::wstring serialize(xmlNodePtr node);

}  // namespace detail

struct Node::Impl {
    detail::Owner owner;
    xmlNodePtr node;
};

}  // namespace kaz::xml
