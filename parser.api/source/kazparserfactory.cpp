#include "kazparser/KAZConfigFactory.h"

#include <memory>
#include <new>

#include <optional>

#include "datacollectorcfgimpl.h"
#include "datamodifiercfgimpl.h"
#include "elementselector.h"
#include "environmentadapter/IEnvironmentAdapter.h"
#include "extparamcfgimpl.h"
#include "extparamscfgimpl.h"
#include "extravaluesconfigcfgimpl.h"
#include "featurecfgimpl.h"
#include "featurescfgimpl.h"
#include "inputconfigcfgimpl.h"
#include "ioutils/IOUtils.h"
#include "kazparsercontenthandlerimpl.h"
#include "kazparsererrorhandlerimpl.h"
#include "kazxml/PlatformError.h"
#include "languagemanager.h"
#include "languagestringcfgimpl.h"
#include "markupcapture.h"
#include "messagesink.h"
#include "nodeerrors.h"
#include "nodekinds.h"
#include "outputconfigcfgimpl.h"
#include "paramcfgimpl.h"
#include "paramsetcfgimpl.h"
#include "paramsetscfgimpl.h"
#include "presentationelementcfgimpl.h"
#include "presentationelementscfgimpl.h"
#include "presentationgroupcfgimpl.h"
#include "presentercfgimpl.h"
#include "samplefixedresultcfgimpl.h"
#include "samplerefresultcfgimpl.h"
#include "sampleresultscfgimpl.h"
#include "selecttablescfgimpl.h"
#include "tablereader.h"
#include "usedatacfgimpl.h"
#include "usedatacollectorcfgimpl.h"
#include "usedatamodifierscfgimpl.h"
#include "useenginecfgimpl.h"
#include "useexpressioncfgimpl.h"
#include "usefixedpresentationelementcfgimpl.h"
#include "usepresentercfgimpl.h"
#include "userefdatacfgimpl.h"
#include "userefpresentationelementcfgimpl.h"
#include "xparsercontenthandlerimpl.h"
#include "xvaluecfgimpl.h"

namespace kaz::kazparser {
namespace {

constexpr const wchar_t* kClassName = L"kaz::kazparser::KAZConfigFactory";
constexpr const wchar_t* kReaderSource = L"kaz::xml::SAXXMLReader";

void check(long result, const wchar_t* what) {
    if (kaz::xml::failed(result)) throw kaz::xml::PlatformError(result, what, kReaderSource);
}

// The markup of a document or element, for the forms that read through
// their text. A null handle raises E_POINTER.
template <class Handle>
std::wstring xmlOf(const Handle& handle) {
    if (handle == nullptr)
        throw kaz::xml::PlatformError(kaz::xml::E_POINTER, L"null document or node", kReaderSource);
    return handle->xml();
}

// Parses `text`; a failed parse raises the reader's error.
void parse(kaz::xml::SAXXMLReader& reader, const std::wstring& text) {
    const long result = reader.parse(text);
    if (kaz::xml::failed(result))
        throw kaz::xml::PlatformError(result, reader.getErrorDescription(), kReaderSource);
}

}  // namespace

// The document and element forms of a kind: they read the markup of the
// document or element and call the kind's text form with it.
#define KAZ_MARKUP_FORMS(Interface, create)                                          \
    Interface* KAZConfigFactory::create(IXMLDOMDocument2Ptr doc, INodeCfg* parent) { \
        const std::wstring text = xmlOf(doc);                                        \
        return create(&text, parent);                                                \
    }                                                                                \
    Interface* KAZConfigFactory::create(IXMLDOMNodePtr node, INodeCfg* parent) {     \
        const std::wstring text = xmlOf(node);                                       \
        return create(&text, parent);                                                \
    }

// The same for the data-value kinds, which take the value's type first.
#define KAZ_TYPED_MARKUP_FORMS(Interface, create)                                                  \
    Interface* KAZConfigFactory::create(tableobj::IElement::ElementType type,                      \
                                        IXMLDOMDocument2Ptr doc, INodeCfg* parent) {               \
        const std::wstring text = xmlOf(doc);                                                      \
        return create(type, &text, parent);                                                        \
    }                                                                                              \
    Interface* KAZConfigFactory::create(tableobj::IElement::ElementType type, IXMLDOMNodePtr node, \
                                        INodeCfg* parent) {                                        \
        const std::wstring text = xmlOf(node);                                                     \
        return create(type, &text, parent);                                                        \
    }

INodeCfg* KAZConfigFactory::createNodeCfg(const std::wstring* text, INodeCfg* parent) {
    return createNodeCfg(text, parent, false, INodeCfg::Param);
}

INodeCfg* KAZConfigFactory::createNodeCfg(const std::wstring* text, INodeCfg* parent,
                                          bool expectKind, INodeCfg::NodeType kind) {
    if (text == nullptr || text->empty()) return nullptr;
    BuildOptions options;
    if (expectKind) options.rootKind = kind;
    return buildTree(*text, parent, options);
}

INodeCfg* KAZConfigFactory::buildTree(const std::wstring& text, INodeCfg* parent,
                                      const BuildOptions& options) {
    using kazexception::IKAZException;
    try {
        kaz::xml::SAXXMLReader reader;
        KAZParserContentHandlerImpl content(parent);
        KAZParserErrorHandlerImpl errors;
        if (options.rootKind) content.expectKind(*options.rootKind);
        std::optional<ElementSelector> selected;
        if (options.onlyElement != nullptr) selected.emplace(content, options.onlyElement);
        kaz::xml::ISAXContentHandler& events =
            selected ? static_cast<kaz::xml::ISAXContentHandler&>(*selected) : content;
        check(reader.putContentHandler(&events), L"the content handler was refused");
        check(reader.putErrorHandler(&errors), L"the error handler was refused");
        try {
            try {
                parse(reader, text);
                if (content.hasError())
                    errors::parsing(L"Syntax error at :'" + content.errorText() + L"'",
                                    KAZ_HERE(kClassName, L"createNodeCfg"));
                return content.takeRoot();
            } catch (IKAZException* e) {
                errors::parsing(L"Syntax error at :'Error on createNodeCfg :\n'",
                                KAZ_HERE(kClassName, L"createNodeCfg"), e);
            }
        } catch (const kaz::xml::PlatformError& error) {
            if (options.onlyElement != nullptr) return nullptr;
            // Failures of the XML services are shown, not thrown; the caller
            // receives what was built before the failure.
            // The error handler's reports, when there are any, say the most.
            showMessage(errors.hasError() ? errors.errorText() : error.message(), L"ErrorMessage");
            if (error.hasSource()) showMessage(error.source(), L"Source");
            return content.takeLastEnded();
        }
    } catch (IKAZException* e) {
        errors::parsing(L"Configure invalid at 'createNodeCfg'",
                        KAZ_HERE(kClassName, L"createNodeCfg"), e);
    }
}

IXNodeCfg* KAZConfigFactory::createXNodeCfg(const std::wstring* text, INodeCfg* parent) {
    using kazexception::IKAZException;
    if (text == nullptr || text->empty()) return nullptr;
    try {
        kaz::xml::SAXXMLReader reader;
        XParserContentHandlerImpl content(parent);
        check(reader.putContentHandler(&content), L"the content handler was refused");
        const long result = reader.parse(*text);
        if (kaz::xml::failed(result))
            errors::parsing(L"Syntax error at :'" + reader.getErrorDescription() + L"'",
                            KAZ_HERE(kClassName, L"createXNodeCfg"));
        std::unique_ptr<INodeCfg> root(content.takeRoot());
        auto* node = dynamic_cast<IXNodeCfg*>(root.get());
        if (node != nullptr) root.release();
        return node;
    } catch (IKAZException* e) {
        errors::parsing(L"Configure invalid at 'createXNodeCfg'",
                        KAZ_HERE(kClassName, L"createXNodeCfg"), e);
    }
}

template <class I, class Impl>
I* KAZConfigFactory::createTyped(const std::wstring* text, INodeCfg* parent,
                                 std::optional<INodeCfg::NodeType> expected) {
    if (text == nullptr || text->empty()) return new (std::nothrow) Impl(parent);
    std::unique_ptr<INodeCfg> node(expected ? createNodeCfg(text, parent, true, *expected)
                                            : createNodeCfg(text, parent));
    I* typed = dynamic_cast<I*>(node.get());
    if (typed != nullptr) node.release();
    return typed;
}

template <class I, class Impl>
I* KAZConfigFactory::createFromElement(const std::wstring* text, INodeCfg* parent,
                                       const std::wstring& element) {
    if (text != nullptr && !text->empty()) {
        std::unique_ptr<INodeCfg> node(
            buildTree(*text, parent, {.rootKind = std::nullopt, .onlyElement = element.c_str()}));
        if (I* typed = dynamic_cast<I*>(node.get())) {
            node.release();
            return typed;
        }
    }
    return new Impl(parent);
}

KAZConfigFactory::MessageHandler KAZConfigFactory::setMessageHandler(MessageHandler handler) {
    return installMessageHandler(std::move(handler));
}

IXMLDOMDocument2Ptr KAZConfigFactory::createXMLDocument() {
    return kaz::xml::Document::create();
}

bool KAZConfigFactory::loadXMLContent(IXMLDOMDocument2Ptr doc, const std::wstring& text) {
    return doc != nullptr && doc->loadXML(text);
}

bool KAZConfigFactory::loadXMLContent(IXMLDOMDocument2Ptr doc, const std::wstring* text) {
    return text != nullptr && loadXMLContent(std::move(doc), *text);
}

// Data values

namespace {

// The node a table reader reads; null raises E_POINTER.
const kaz::xml::Node& nodeOf(const IXMLDOMNodePtr& node) {
    if (node == nullptr)
        throw kaz::xml::PlatformError(kaz::xml::E_POINTER, L"null node", kReaderSource);
    return *node;
}

}  // namespace

IUseDataCfg* KAZConfigFactory::createUseDataCfg(tableobj::IElement::ElementType type,
                                                const std::wstring* text, INodeCfg* parent) {
    std::unique_ptr<UseDataCfgImpl> node(new UseDataCfgImpl(parent));
    if (text == nullptr || text->empty()) return node.release();
    const IXMLDOMDocument2Ptr doc = createXMLDocument();
    if (!loadXMLContent(doc, text)) return node.release();
    const IXMLDOMNodePtr element = doc->documentElement();
    node->setElementName(element->nodeName());
    node->setValue(createDataValue(type, element));
    return node.release();
}

KAZ_TYPED_MARKUP_FORMS(IUseDataCfg, createUseDataCfg)

IUseRefDataCfg* KAZConfigFactory::createUseRefDataCfg(tableobj::IElement::ElementType,
                                                      const std::wstring* text, INodeCfg* parent) {
    std::unique_ptr<UseRefDataCfgImpl> node(new UseRefDataCfgImpl(parent));
    if (text == nullptr || text->empty()) return node.release();
    const IXMLDOMDocument2Ptr doc = createXMLDocument();
    if (!loadXMLContent(doc, text)) return node.release();
    const IXMLDOMNodePtr element = doc->documentElement();
    node->setElementName(element->nodeName());
    node->setReference(leadingMarkup(contentOf(*element)));
    return node.release();
}

KAZ_TYPED_MARKUP_FORMS(IUseRefDataCfg, createUseRefDataCfg)

ILanguageStringCfg* KAZConfigFactory::createLanguageStringCfg(const std::wstring* text,
                                                              INodeCfg* parent) {
    return createTyped<ILanguageStringCfg, LanguageStringCfgImpl>(text, parent, std::nullopt);
}

tableobj::IElement* KAZConfigFactory::createDataValue(tableobj::IElement::ElementType type,
                                                      IXMLDOMNodePtr element) {
    return tablereader::readValue(type, contentOf(nodeOf(element)));
}

tableobj::IColumn* KAZConfigFactory::createColumn(IXMLDOMNodePtr node) {
    return tablereader::readColumn(contentOf(nodeOf(node)));
}

tableobj::IColumns* KAZConfigFactory::createColumns(IXMLDOMNodePtr node) {
    return tablereader::readColumns(contentOf(nodeOf(node)));
}

tableobj::ITable* KAZConfigFactory::createTable(IXMLDOMNodePtr node) {
    return tablereader::readTable(contentOf(nodeOf(node)));
}

tableobj::ITables* KAZConfigFactory::createTables(IXMLDOMNodePtr node) {
    return tablereader::readTables(contentOf(nodeOf(node)));
}

tableobj::ITablesCollection* KAZConfigFactory::createTablesCollection(IXMLDOMNodePtr node) {
    return tablereader::readTablesCollection(contentOf(nodeOf(node)));
}

// Parameter sets, parameters, values and extension parameters

IParamSetsCfg* KAZConfigFactory::createParamSetsCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IParamSetsCfg, ParamSetsCfgImpl>(text, parent, std::nullopt);
}

IParamSetCfg* KAZConfigFactory::createParamSetCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IParamSetCfg, ParamSetCfgImpl>(text, parent, INodeCfg::ParamSet);
}

IParamCfg* KAZConfigFactory::createParamCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IParamCfg, ParamCfgImpl>(text, parent, INodeCfg::Param);
}

IXValueCfg* KAZConfigFactory::createXValueCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IXValueCfg, XValueCfgImpl>(text, parent, std::nullopt);
}

IExtParamsCfg* KAZConfigFactory::createExtParamsCfg(const std::wstring* text, INodeCfg* parent) {
    return createFromElement<IExtParamsCfg, ExtParamsCfgImpl>(text, parent,
                                                              kinds::tag(INodeCfg::ExtParams));
}

IExtParamCfg* KAZConfigFactory::createExtParamCfg(const std::wstring* text, INodeCfg* parent) {
    return createFromElement<IExtParamCfg, ExtParamCfgImpl>(text, parent,
                                                            kinds::tag(INodeCfg::ExtParam));
}

KAZ_MARKUP_FORMS(IParamSetsCfg, createParamSetsCfg)

KAZ_MARKUP_FORMS(IParamSetCfg, createParamSetCfg)

KAZ_MARKUP_FORMS(IParamCfg, createParamCfg)

KAZ_MARKUP_FORMS(IXValueCfg, createXValueCfg)

KAZ_MARKUP_FORMS(IExtParamsCfg, createExtParamsCfg)

KAZ_MARKUP_FORMS(IExtParamCfg, createExtParamCfg)

IParamSetCfg* KAZConfigFactory::createParamSetCfg(INodeCfg* parent, IXMLDOMNodePtr node) {
    return createParamSetCfg(std::move(node), parent);
}

IParamSetsCfg* KAZConfigFactory::createParamSetsCfg(INodeCfg* parent, IXMLDOMNodePtr node) {
    return createParamSetsCfg(std::move(node), parent);
}

// Features, extra values and language resources

IFeatureCfg* KAZConfigFactory::createFeatureCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IFeatureCfg, FeatureCfgImpl>(text, parent, INodeCfg::Feature);
}

KAZ_MARKUP_FORMS(IFeatureCfg, createFeatureCfg)

IFeaturesCfg* KAZConfigFactory::createFeaturesCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IFeaturesCfg, FeaturesCfgImpl>(text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IFeaturesCfg, createFeaturesCfg)

IExtraValuesConfigCfg* KAZConfigFactory::createExtraValuesConfigCfg(const std::wstring* text,
                                                                    INodeCfg* parent) {
    return createTyped<IExtraValuesConfigCfg, ExtraValuesConfigCfgImpl>(text, parent, std::nullopt);
}

bool KAZConfigFactory::setWorkingLanguageResource(const std::wstring& resource) {
    return LanguageManager::instance().load(resource);
}

// Engines, expressions, presenters, input and output configuration

IPresenterCfg* KAZConfigFactory::createPresenterCfg(const std::wstring* text, INodeCfg* parent) {
    return createTyped<IPresenterCfg, PresenterCfgImpl>(text, parent, INodeCfg::Presenter);
}

KAZ_MARKUP_FORMS(IPresenterCfg, createPresenterCfg)

IUsePresenterCfg* KAZConfigFactory::createUsePresenterCfg(const std::wstring* text,
                                                          INodeCfg* parent) {
    return createFromElement<IUsePresenterCfg, UsePresenterCfgImpl>(
        text, parent, kinds::tag(INodeCfg::UsePresenter));
}

KAZ_MARKUP_FORMS(IUsePresenterCfg, createUsePresenterCfg)

IUseExpressionCfg* KAZConfigFactory::createUseExpressionCfg(const std::wstring* text,
                                                            INodeCfg* parent) {
    return createTyped<IUseExpressionCfg, UseExpressionCfgImpl>(text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IUseExpressionCfg, createUseExpressionCfg)

IUseEngineCfg* KAZConfigFactory::createUseEngineCfg(const std::wstring* text, INodeCfg* parent) {
    return createFromElement<IUseEngineCfg, UseEngineCfgImpl>(text, parent,
                                                              kinds::tag(INodeCfg::UseEngine));
}

KAZ_MARKUP_FORMS(IUseEngineCfg, createUseEngineCfg)

ISelectTablesCfg* KAZConfigFactory::createSelectTablesCfg(const std::wstring* text,
                                                          INodeCfg* parent) {
    return createFromElement<ISelectTablesCfg, SelectTablesCfgImpl>(
        text, parent, kinds::tag(INodeCfg::SelectTables));
}

KAZ_MARKUP_FORMS(ISelectTablesCfg, createSelectTablesCfg)

IInputConfigCfg* KAZConfigFactory::createInputConfigCfg(const std::wstring* text,
                                                        INodeCfg* parent) {
    return createTyped<IInputConfigCfg, InputConfigCfgImpl>(text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IInputConfigCfg, createInputConfigCfg)

IOutputConfigCfg* KAZConfigFactory::createOutputConfigCfg(const std::wstring* text,
                                                          INodeCfg* parent) {
    return createTyped<IOutputConfigCfg, OutputConfigCfgImpl>(text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IOutputConfigCfg, createOutputConfigCfg)

// Plug-ins, sample results, collector and modifier references

IDataCollectorCfg* KAZConfigFactory::createDataCollectorCfg(const std::wstring* text,
                                                            INodeCfg* parent) {
    return createTyped<IDataCollectorCfg, DataCollectorCfgImpl>(text, parent,
                                                                INodeCfg::DataCollector);
}

KAZ_MARKUP_FORMS(IDataCollectorCfg, createDataCollectorCfg)

IDataModifierCfg* KAZConfigFactory::createDataModifierCfg(const std::wstring* text,
                                                          INodeCfg* parent) {
    return createTyped<IDataModifierCfg, DataModifierCfgImpl>(text, parent, INodeCfg::DataModifier);
}

KAZ_MARKUP_FORMS(IDataModifierCfg, createDataModifierCfg)

IUseDataCollectorCfg* KAZConfigFactory::createUseDataCollectorCfg(const std::wstring* text,
                                                                  INodeCfg* parent) {
    return createFromElement<IUseDataCollectorCfg, UseDataCollectorCfgImpl>(
        text, parent, kinds::tag(INodeCfg::UseDataCollector));
}

KAZ_MARKUP_FORMS(IUseDataCollectorCfg, createUseDataCollectorCfg)

IUseDataModifiersCfg* KAZConfigFactory::createUseDataModifiersCfg(const std::wstring* text,
                                                                  INodeCfg* parent) {
    return createFromElement<IUseDataModifiersCfg, UseDataModifiersCfgImpl>(
        text, parent, kinds::tag(INodeCfg::UseDataModifiers));
}

KAZ_MARKUP_FORMS(IUseDataModifiersCfg, createUseDataModifiersCfg)

ISampleResultsCfg* KAZConfigFactory::createSampleResultsCfg(const std::wstring* text,
                                                            INodeCfg* parent) {
    return createTyped<ISampleResultsCfg, SampleResultsCfgImpl>(text, parent, std::nullopt);
}

ISampleFixedResultCfg* KAZConfigFactory::createSampleFixedResultCfg(const std::wstring* text,
                                                                    INodeCfg* parent) {
    return createTyped<ISampleFixedResultCfg, SampleFixedResultCfgImpl>(text, parent, std::nullopt);
}

ISampleRefResultCfg* KAZConfigFactory::createSampleRefResultCfg(const std::wstring* text,
                                                                INodeCfg* parent) {
    return createTyped<ISampleRefResultCfg, SampleRefResultCfgImpl>(text, parent, std::nullopt);
}

// Presentation elements, references and groups

namespace {

bool isAbsolutePath(const std::wstring& name) {
    return name.front() == L'/' || name.front() == L'\\' || (name.size() > 1 && name[1] == L':');
}

// A relative file name is taken under the root directory.
std::wstring underRootDirectory(const std::wstring& fileName) {
    if (isAbsolutePath(fileName)) return fileName;
    std::wstring path = environmentadapter::IEnvironmentAdapter::getInstance().getRootDirectory();
    if (!path.empty() && path.back() != L'/' && path.back() != L'\\') path += L'/';
    return path + fileName;
}

}  // namespace

IPresentationGroupCfg* KAZConfigFactory::createPresentationGroupCfg(const std::wstring* text,
                                                                    INodeCfg* parent) {
    return createTyped<IPresentationGroupCfg, PresentationGroupCfgImpl>(text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IPresentationGroupCfg, createPresentationGroupCfg)

IPresentationElementsCfg* KAZConfigFactory::createPresentationElementsCfg(const std::wstring* text,
                                                                          INodeCfg* parent) {
    return createFromElement<IPresentationElementsCfg, PresentationElementsCfgImpl>(
        text, parent, kinds::tag(INodeCfg::PresentationElements));
}

KAZ_MARKUP_FORMS(IPresentationElementsCfg, createPresentationElementsCfg)

IPresentationElementCfg* KAZConfigFactory::createPresentationElementCfg(const std::wstring* text,
                                                                        INodeCfg* parent) {
    return createTyped<IPresentationElementCfg, PresentationElementCfgImpl>(text, parent,
                                                                            std::nullopt);
}

KAZ_MARKUP_FORMS(IPresentationElementCfg, createPresentationElementCfg)

IPresentationElementCfg* KAZConfigFactory::createPresentationElementCfg(std::wstring fileName,
                                                                        INodeCfg* parent) {
    if (fileName.empty()) return createPresentationElementCfg(&fileName, parent);
    const std::wstring text =
        ioutils::IOUtilsFactory::createIOUtils()->readTextFile(underRootDirectory(fileName));
    return createPresentationElementCfg(&text, parent);
}

IUsePresentationElementCfg* KAZConfigFactory::createUseRefPresentationElementCfg(
    const std::wstring* text, INodeCfg* parent) {
    return createTyped<IUsePresentationElementCfg, UseRefPresentationElementCfgImpl>(text, parent,
                                                                                     std::nullopt);
}

KAZ_MARKUP_FORMS(IUsePresentationElementCfg, createUseRefPresentationElementCfg)

IUsePresentationElementCfg* KAZConfigFactory::createUseFixedPresentationElementCfg(
    const std::wstring* text, INodeCfg* parent) {
    return createTyped<IUsePresentationElementCfg, UseFixedPresentationElementCfgImpl>(
        text, parent, std::nullopt);
}

KAZ_MARKUP_FORMS(IUsePresentationElementCfg, createUseFixedPresentationElementCfg)

}  // namespace kaz::kazparser
