#pragma once

#include <functional>
#include <optional>
#include <string>

#include "kazparser/IExtParamCfg.h"
#include "kazparser/IExtParamsCfg.h"
#include "kazparser/ILanguageStringCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/IParamCfg.h"
#include "kazparser/IParamSetCfg.h"
#include "kazparser/IParamSetsCfg.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseRefDataCfg.h"
#include "kazparser/IXNodeCfg.h"
#include "kazparser/IXValueCfg.h"
#include "kazxml/Document.h"
#include "tableobj/ITablesCollection.h"

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

    // Parameter sets, parameters, values and extension parameters
    // A null or empty text gives the empty node of the kind. ParamSet and
    // Param elements may have any name: the text's root element is read as
    // that kind. ExtParams and ExtParam are built from the first element of
    // that name in the text. A root element of another kind gives null.
    static IParamSetsCfg* createParamSetsCfg(const std::wstring* text, INodeCfg* parent);
    static IParamSetsCfg* createParamSetsCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IParamSetsCfg* createParamSetsCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IParamSetCfg* createParamSetCfg(const std::wstring* text, INodeCfg* parent);
    static IParamSetCfg* createParamSetCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IParamSetCfg* createParamSetCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IParamCfg* createParamCfg(const std::wstring* text, INodeCfg* parent);
    static IParamCfg* createParamCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IParamCfg* createParamCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IXValueCfg* createXValueCfg(const std::wstring* text, INodeCfg* parent);
    static IXValueCfg* createXValueCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IXValueCfg* createXValueCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IExtParamsCfg* createExtParamsCfg(const std::wstring* text, INodeCfg* parent);
    static IExtParamsCfg* createExtParamsCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IExtParamsCfg* createExtParamsCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IExtParamCfg* createExtParamCfg(const std::wstring* text, INodeCfg* parent);
    static IExtParamCfg* createExtParamCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IExtParamCfg* createExtParamCfg(IXMLDOMNodePtr node, INodeCfg* parent);

    // Data values
    // A typed value of `type` read from the document element of `text`:
    // Boolean is true exactly for the text "true", Double and Integer take the
    // leading number of the text (0 without one), String the text that starts
    // the content or the markup of its first child element, Column, Columns,
    // Table, Tables and TablesCollection the table object written as the
    // first child element; other types hold no value. The node keeps the
    // document element's name unless the value's type names it. A null or
    // empty text, or one that does not load, gives the empty node; a table
    // object that cannot be read raises the invalid-data error saying why.
    static IUseDataCfg* createUseDataCfg(tableobj::IElement::ElementType type,
                                         const std::wstring* text, INodeCfg* parent);
    static IUseDataCfg* createUseDataCfg(tableobj::IElement::ElementType type,
                                         IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IUseDataCfg* createUseDataCfg(tableobj::IElement::ElementType type, IXMLDOMNodePtr node,
                                         INodeCfg* parent);
    // A reference holding the markup of the document element's first child
    // (character data with all its pieces), under the document element's
    // name. `type` is not used. A null or empty text, or one that does not
    // load, gives the empty node.
    static IUseRefDataCfg* createUseRefDataCfg(tableobj::IElement::ElementType type,
                                               const std::wstring* text, INodeCfg* parent);
    static IUseRefDataCfg* createUseRefDataCfg(tableobj::IElement::ElementType type,
                                               IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IUseRefDataCfg* createUseRefDataCfg(tableobj::IElement::ElementType type,
                                               IXMLDOMNodePtr node, INodeCfg* parent);
    static ILanguageStringCfg* createLanguageStringCfg(const std::wstring* text, INodeCfg* parent);

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

    // The node forms of the parameter-set kinds with the arguments reversed.
    static IParamSetCfg* createParamSetCfg(INodeCfg* parent, IXMLDOMNodePtr node);
    static IParamSetsCfg* createParamSetsCfg(INodeCfg* parent, IXMLDOMNodePtr node);

    // Table objects from the elements they write; anything else raises the
    // invalid-data error naming the element and the problem.
    static tableobj::IColumn* createColumn(IXMLDOMNodePtr node);
    static tableobj::IColumns* createColumns(IXMLDOMNodePtr node);
    static tableobj::ITable* createTable(IXMLDOMNodePtr node);
    static tableobj::ITables* createTables(IXMLDOMNodePtr node);
    static tableobj::ITablesCollection* createTablesCollection(IXMLDOMNodePtr node);
    // The value of a data element of `type` (the rules of createUseDataCfg);
    // null when the type holds none or the element holds no table object.
    static tableobj::IElement* createDataValue(tableobj::IElement::ElementType type,
                                               IXMLDOMNodePtr element);

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
