#pragma once

#include <functional>
#include <optional>
#include <string>

#include "kazparser/IDataCollectorCfg.h"
#include "kazparser/IDataModifierCfg.h"
#include "kazparser/IExtParamCfg.h"
#include "kazparser/IExtParamsCfg.h"
#include "kazparser/IExtraValuesConfigCfg.h"
#include "kazparser/IFeatureCfg.h"
#include "kazparser/IFeaturesCfg.h"
#include "kazparser/IInputConfigCfg.h"
#include "kazparser/ILanguageStringCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/IOutputConfigCfg.h"
#include "kazparser/IParamCfg.h"
#include "kazparser/IParamSetCfg.h"
#include "kazparser/IParamSetsCfg.h"
#include "kazparser/IPresentationElementCfg.h"
#include "kazparser/IPresentationElementsCfg.h"
#include "kazparser/IPresentationGroupCfg.h"
#include "kazparser/IPresenterCfg.h"
#include "kazparser/ISampleFixedResultCfg.h"
#include "kazparser/ISampleRefResultCfg.h"
#include "kazparser/ISampleResultsCfg.h"
#include "kazparser/ISelectTablesCfg.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"
#include "kazparser/IUseEngineCfg.h"
#include "kazparser/IUseExpressionCfg.h"
#include "kazparser/IUsePresentationElementCfg.h"
#include "kazparser/IUsePresenterCfg.h"
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
    using MessageHandler =
        std::function<void(const std::wstring& text, const std::wstring& caption)>;

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

    // Features, extra values and language resources
    // A null or empty text gives the empty node of the kind (a feature named
    // "Feature"). A Feature element may have any name: the text's root
    // element is read as a feature, its content kept as the value. A root
    // element of another kind gives null.
    static IFeatureCfg* createFeatureCfg(const std::wstring* text, INodeCfg* parent);
    static IFeatureCfg* createFeatureCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IFeatureCfg* createFeatureCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IFeaturesCfg* createFeaturesCfg(const std::wstring* text, INodeCfg* parent);
    static IFeaturesCfg* createFeaturesCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IFeaturesCfg* createFeaturesCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IExtraValuesConfigCfg* createExtraValuesConfigCfg(const std::wstring* text,
                                                             INodeCfg* parent);
    // Installs the working language from an XML text: every element below
    // the document element with a non-empty "id" gives its text under that
    // ID (a repeated ID keeps the later text). An empty or malformed text
    // answers false and keeps the working language as it was.
    static bool setWorkingLanguageResource(const std::wstring& resource);

    // Engines, expressions, presenters, input and output configuration
    // A null or empty text gives the empty node of the kind. A Presenter
    // element may have any name: the text's root element is read as a
    // presenter. UsePresenter, UseEngine and SelectTables are built from the
    // first element of that name in the text. A root element of another
    // kind gives null.
    static IPresenterCfg* createPresenterCfg(const std::wstring* text, INodeCfg* parent);
    static IPresenterCfg* createPresenterCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IPresenterCfg* createPresenterCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IUsePresenterCfg* createUsePresenterCfg(const std::wstring* text, INodeCfg* parent);
    static IUsePresenterCfg* createUsePresenterCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IUsePresenterCfg* createUsePresenterCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IUseExpressionCfg* createUseExpressionCfg(const std::wstring* text, INodeCfg* parent);
    static IUseExpressionCfg* createUseExpressionCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IUseExpressionCfg* createUseExpressionCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IUseEngineCfg* createUseEngineCfg(const std::wstring* text, INodeCfg* parent);
    static IUseEngineCfg* createUseEngineCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IUseEngineCfg* createUseEngineCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static ISelectTablesCfg* createSelectTablesCfg(const std::wstring* text, INodeCfg* parent);
    static ISelectTablesCfg* createSelectTablesCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static ISelectTablesCfg* createSelectTablesCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IInputConfigCfg* createInputConfigCfg(const std::wstring* text, INodeCfg* parent);
    static IInputConfigCfg* createInputConfigCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IInputConfigCfg* createInputConfigCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IOutputConfigCfg* createOutputConfigCfg(const std::wstring* text, INodeCfg* parent);
    static IOutputConfigCfg* createOutputConfigCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IOutputConfigCfg* createOutputConfigCfg(IXMLDOMNodePtr node, INodeCfg* parent);

    // Plug-ins, sample results, collector and modifier references
    // A null or empty text gives the empty node of the kind. DataCollector
    // and DataModifier elements may have any name: the text's root element is
    // read as that kind. UseDataCollector and UseDataModifiers are built from
    // the first element of that name in the text. A root element of another
    // kind gives null.
    static IDataCollectorCfg* createDataCollectorCfg(const std::wstring* text, INodeCfg* parent);
    static IDataCollectorCfg* createDataCollectorCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IDataCollectorCfg* createDataCollectorCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IDataModifierCfg* createDataModifierCfg(const std::wstring* text, INodeCfg* parent);
    static IDataModifierCfg* createDataModifierCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
    static IDataModifierCfg* createDataModifierCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IUseDataCollectorCfg* createUseDataCollectorCfg(const std::wstring* text,
                                                           INodeCfg* parent);
    static IUseDataCollectorCfg* createUseDataCollectorCfg(IXMLDOMDocument2Ptr doc,
                                                           INodeCfg* parent);
    static IUseDataCollectorCfg* createUseDataCollectorCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IUseDataModifiersCfg* createUseDataModifiersCfg(const std::wstring* text,
                                                           INodeCfg* parent);
    static IUseDataModifiersCfg* createUseDataModifiersCfg(IXMLDOMDocument2Ptr doc,
                                                           INodeCfg* parent);
    static IUseDataModifiersCfg* createUseDataModifiersCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static ISampleResultsCfg* createSampleResultsCfg(const std::wstring* text, INodeCfg* parent);
    static ISampleFixedResultCfg* createSampleFixedResultCfg(const std::wstring* text,
                                                             INodeCfg* parent);
    static ISampleRefResultCfg* createSampleRefResultCfg(const std::wstring* text,
                                                         INodeCfg* parent);

    // Presentation elements, references and groups
    // A null or empty text gives the empty node of the kind. PresentationElements
    // is built from the first element of that name in the text. Both
    // reference forms answer the reference the root element names, fixed or
    // file. A root element of another kind gives null.
    static IPresentationGroupCfg* createPresentationGroupCfg(const std::wstring* text,
                                                             INodeCfg* parent);
    static IPresentationGroupCfg* createPresentationGroupCfg(IXMLDOMDocument2Ptr doc,
                                                             INodeCfg* parent);
    static IPresentationGroupCfg* createPresentationGroupCfg(IXMLDOMNodePtr node, INodeCfg* parent);
    static IPresentationElementsCfg* createPresentationElementsCfg(const std::wstring* text,
                                                                   INodeCfg* parent);
    static IPresentationElementsCfg* createPresentationElementsCfg(IXMLDOMDocument2Ptr doc,
                                                                   INodeCfg* parent);
    static IPresentationElementsCfg* createPresentationElementsCfg(IXMLDOMNodePtr node,
                                                                   INodeCfg* parent);
    static IPresentationElementCfg* createPresentationElementCfg(const std::wstring* text,
                                                                 INodeCfg* parent);
    static IPresentationElementCfg* createPresentationElementCfg(IXMLDOMDocument2Ptr doc,
                                                                 INodeCfg* parent);
    static IPresentationElementCfg* createPresentationElementCfg(IXMLDOMNodePtr node,
                                                                 INodeCfg* parent);
    // Reads the file `fileName` (a relative name is taken under the root
    // directory of the environment adapter) and builds the element its text
    // holds, as the text form does. An empty name gives the empty element;
    // a file that cannot be read raises the invalid-data error naming it.
    static IPresentationElementCfg* createPresentationElementCfg(std::wstring fileName,
                                                                 INodeCfg* parent);
    static IUsePresentationElementCfg* createUseRefPresentationElementCfg(const std::wstring* text,
                                                                          INodeCfg* parent);
    static IUsePresentationElementCfg* createUseRefPresentationElementCfg(IXMLDOMDocument2Ptr doc,
                                                                          INodeCfg* parent);
    static IUsePresentationElementCfg* createUseRefPresentationElementCfg(IXMLDOMNodePtr node,
                                                                          INodeCfg* parent);
    static IUsePresentationElementCfg* createUseFixedPresentationElementCfg(
        const std::wstring* text, INodeCfg* parent);
    static IUsePresentationElementCfg* createUseFixedPresentationElementCfg(IXMLDOMDocument2Ptr doc,
                                                                            INodeCfg* parent);
    static IUsePresentationElementCfg* createUseFixedPresentationElementCfg(IXMLDOMNodePtr node,
                                                                            INodeCfg* parent);

    // Installs the receiver of shown messages and answers the previous one.
    // The default writes "caption: text" and a line break to standard error.
    static MessageHandler setMessageHandler(MessageHandler handler);

private:
    KAZConfigFactory() = default;

    // The tree builder; `kind` is the kind expected for the root element.
    static INodeCfg* createNodeCfg(const std::wstring* text, INodeCfg* parent, bool expectKind,
                                   INodeCfg::NodeType kind);
    // How the tree builder reads a text.
    struct BuildOptions {
        std::optional<INodeCfg::NodeType> rootKind;  // the kind of the root element
        // When set, only the first element of this name (no namespace) is
        // built, and a text that does not load gives null, shown nowhere.
        const wchar_t* onlyElement = nullptr;
    };
    static INodeCfg* buildTree(const std::wstring& text, INodeCfg* parent,
                               const BuildOptions& options);

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
    // The builder's node for the first element named `element` (no
    // namespace); an empty `Impl` when there is none or the text does not
    // load.
    template <class I, class Impl>
    static I* createFromElement(const std::wstring* text, INodeCfg* parent,
                                const std::wstring& element);

    friend class KAZParserContentHandlerImpl;
};

}  // namespace kaz::kazparser
