#include <libxml/entities.h>
#include <libxml/xmlsave.h>

#include <cstring>
#include <memory>
#include <new>

#include "dom.h"
#include "libxmlsupport.h"

namespace kaz::xml::detail {
namespace {

using Buffer = std::unique_ptr<xmlBuffer, Freer<xmlBuffer, xmlBufferFree>>;
using NodeCopy = std::unique_ptr<xmlNode, Freer<xmlNode, xmlFreeNode>>;
using DocumentCopy = std::unique_ptr<xmlDoc, Freer<xmlDoc, xmlFreeDoc>>;

// libxml2 writes namespace names as they are, so one holding "&", "<" or a
// quote would give markup that does not load again.
bool unsafe(const xmlNs* ns) {
    return ns->href != nullptr &&
           std::strpbrk(reinterpret_cast<const char*>(ns->href), "&<\"") != nullptr;
}

bool hasUnsafeNamespace(xmlNodePtr top) {
    bool found = false;
    forEachDeclaration(top, [&](xmlNsPtr ns) { found = found || unsafe(ns); });
    return found;
}

// Only on a copy: the escaped names are what the serializer writes out.
void escapeNamespaces(xmlNodePtr top) {
    forEachDeclaration(top, [&](xmlNsPtr ns) {
        if (!unsafe(ns)) return;
        xmlChar* escaped = xmlEncodeSpecialChars(nullptr, ns->href);
        if (escaped == nullptr) throw std::bad_alloc();
        xmlFree(const_cast<xmlChar*>(ns->href));
        ns->href = escaped;
    });
}

std::wstring save(xmlNodePtr node) {
    Buffer buffer(xmlBufferCreate());
    if (!buffer) throw std::bad_alloc();
    xmlSaveCtxtPtr save = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL);
    if (save == nullptr) throw std::bad_alloc();
    if (node->type == XML_DOCUMENT_NODE)
        xmlSaveDoc(save, reinterpret_cast<xmlDocPtr>(node));
    else
        xmlSaveTree(save, node);
    xmlSaveClose(save);
    return toWide(xmlBufferContent(buffer.get()),
                  static_cast<std::size_t>(xmlBufferLength(buffer.get())));
}

}  // namespace

std::wstring serialize(xmlNodePtr node) {
    if (node->type == XML_ELEMENT_NODE) {
        // A copy declares the namespaces it uses from its ancestors, so the
        // markup stands on its own.
        NodeCopy copy(xmlDocCopyNode(node, node->doc, 1));
        if (!copy) throw std::bad_alloc();
        escapeNamespaces(copy.get());
        return save(copy.get());
    }
    if (node->type == XML_DOCUMENT_NODE && hasUnsafeNamespace(node)) {
        DocumentCopy copy(xmlCopyDoc(reinterpret_cast<xmlDocPtr>(node), 1));
        if (!copy) throw std::bad_alloc();
        escapeNamespaces(reinterpret_cast<xmlNodePtr>(copy.get()));
        return save(reinterpret_cast<xmlNodePtr>(copy.get()));
    }
    return save(node);
}

}  // namespace kaz::xml::detail
