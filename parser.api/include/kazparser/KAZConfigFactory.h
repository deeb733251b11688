#pragma once

#include <functional>
#include <optional>
#include <string>

#include "kazparser/INodeCfg.h"
#include "kazparser/IXNodeCfg.h"
#include "kazxml/Document.h"

namespace kaz::kazparser {

using IXMLDOMDocument2Ptr = kaz::xml::IXMLDOMDocument2Ptr;
using IXMLDOMNodePtr = kaz::xml::IXMLDOMNodePtr;

// The library's entry point: turns configuration texts into node trees.
// The caller owns every node it receives.
class KAZPARSER_API KAZConfigFactory {
public:
    // Receives a message that the library shows instead of throwing
    // (parse-time failures of the XML services): the text and its caption.
    using MessageHandler = std::function<void(const std::wstring& text, const std::wstring& caption)>;

    // Builds whatever node kind the text's root element names. Null for a
    // null or empty text. Malformed text shows its error through the message
    // handler and answers the node of the last element that ended (or null);
    // a text the builder cannot turn into nodes raises the parsing
    // exception "Configure invalid at 'createNodeCfg'" with the reasons as
    // inner exceptions.
    static INodeCfg* createNodeCfg(const std::wstring* text, INodeCfg* parent);

    // Turns any XML text into a tree of generic nodes. Null for a null or
    // empty text; failures raise "Configure invalid at 'createXNodeCfg'".
    static IXNodeCfg* createXNodeCfg(const std::wstring* text, INodeCfg* parent);

    // Installs the receiver of shown messages and answers the previous one.
    // The default writes "caption: text" and a line break to standard error.
    static MessageHandler setMessageHandler(MessageHandler handler);

private:
    KAZConfigFactory() = default;

    // The tree builder; `kind` is the kind expected for the root element.
    static INodeCfg* createNodeCfg(const std::wstring* text, INodeCfg* parent, bool expectKind,
                                   INodeCfg::NodeType kind);

    static IXMLDOMDocument2Ptr createXMLDocument();
    static bool loadXMLContent(IXMLDOMDocument2Ptr doc, const std::wstring& text);
    static bool loadXMLContent(IXMLDOMDocument2Ptr doc, const std::wstring* text);

    // The plain text form of a kind: an empty `Impl` for no text, else the
    // builder's node (with `expected` as the root's kind) when it is an `I`.
    template <class I, class Impl>
    static I* createTyped(const std::wstring* text, INodeCfg* parent,
                          std::optional<INodeCfg::NodeType> expected);
    // The form that reads through the document: the builder's node for the
    // first element named `element`; an empty `Impl` when there is none.
    template <class I, class Impl>
    static I* createFromElement(const std::wstring* text, INodeCfg* parent,
                                const std::wstring& element);

    friend class KAZParserContentHandlerImpl;
};

}  // namespace kaz::kazparser
