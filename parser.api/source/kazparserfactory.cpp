#include "kazparser/KAZConfigFactory.h"

#include <memory>
#include <new>

#include "kazparsercontenthandlerimpl.h"
#include "extparamcfgimpl.h"
#include "extparamscfgimpl.h"
#include "kazparsererrorhandlerimpl.h"
#include "languagestringcfgimpl.h"
#include "markupcapture.h"
#include "paramcfgimpl.h"
#include "paramsetcfgimpl.h"
#include "paramsetscfgimpl.h"
#include "tablereader.h"
#include "usedatacfgimpl.h"
#include "userefdatacfgimpl.h"
#include "kazxml/PlatformError.h"
#include "messagesink.h"
#include "nodeerrors.h"
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

INodeCfg* KAZConfigFactory::createNodeCfg(const std::wstring* text, INodeCfg* parent) {
    return createNodeCfg(text, parent, false, INodeCfg::Param);
}

INodeCfg* KAZConfigFactory::createNodeCfg(const std::wstring* text, INodeCfg* parent,
                                          bool expectKind, INodeCfg::NodeType kind) {
    using kazexception::IKAZException;
    if (text == nullptr || text->empty()) return nullptr;
    try {
        kaz::xml::SAXXMLReader reader;
        KAZParserContentHandlerImpl content(parent);
        KAZParserErrorHandlerImpl errors;
        if (expectKind) content.expectKind(kind);
        check(reader.putContentHandler(&content), L"the content handler was refused");
        check(reader.putErrorHandler(&errors), L"the error handler was refused");
        try {
            try {
                parse(reader, *text);
                if (content.hasError())
                    errors::parsing(L"Syntax error at :'" + content.errorText() + L"'",
                                    KAZ_HERE(kClassName, L"createNodeCfg"));
                return content.takeRoot();
            } catch (IKAZException* e) {
                errors::parsing(L"Syntax error at :'Error on createNodeCfg :\n'",
                                KAZ_HERE(kClassName, L"createNodeCfg"), e);
            }
        } catch (const kaz::xml::PlatformError& error) {
            // Failures of the XML services are shown, not thrown; the caller
            // receives what was built before the failure.
            // The error handler's reports, when there are any, say the most.
            showMessage(errors.hasError() ? errors.errorText() : error.message(), L"ErrorMessage");
            if (error.hasSource()) showMessage(error.source(), L"Source");
            return content.takeLastEnded();
        }
    } catch (IKAZException* e) {
        errors::parsing(L"Configure invalid at 'createNodeCfg'", KAZ_HERE(kClassName, L"createNodeCfg"),
                        e);
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
        errors::parsing(L"Configure invalid at 'createXNodeCfg'", KAZ_HERE(kClassName, L"createXNodeCfg"),
                        e);
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
    IXMLDOMDocument2Ptr doc = createXMLDocument();
    if (text != nullptr && !text->empty() && loadXMLContent(doc, text)) {
        if (IXMLDOMNodePtr node = doc->selectSingleNode(L"//" + element)) {
            const std::wstring markup = node->xml();
            if (I* built = createTyped<I, Impl>(&markup, parent, std::nullopt)) return built;
        }
    }
    return new Impl(parent);
}

KAZConfigFactory::MessageHandler KAZConfigFactory::setMessageHandler(MessageHandler handler) {
    return installMessageHandler(std::move(handler));
}

IXMLDOMDocument2Ptr KAZConfigFactory::createXMLDocument() { return kaz::xml::Document::create(); }

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

IUseDataCfg* KAZConfigFactory::createUseDataCfg(tableobj::IElement::ElementType type,
                                                IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    const std::wstring text = xmlOf(doc);
    return createUseDataCfg(type, &text, parent);
}

IUseDataCfg* KAZConfigFactory::createUseDataCfg(tableobj::IElement::ElementType type,
                                                IXMLDOMNodePtr node, INodeCfg* parent) {
    const std::wstring text = xmlOf(node);
    return createUseDataCfg(type, &text, parent);
}

IUseRefDataCfg* KAZConfigFactory::createUseRefDataCfg(tableobj::IElement::ElementType,
                                                      const std::wstring* text, INodeCfg* parent) {
    std::unique_ptr<UseRefDataCfgImpl> node(new UseRefDataCfgImpl(parent));
    if (text == nullptr || text->empty()) return node.release();
    const IXMLDOMDocument2Ptr doc = createXMLDocument();
    if (!loadXMLContent(doc, text)) return node.release();
    const IXMLDOMNodePtr element = doc->documentElement();
    node->setElementName(element->nodeName());
    node->setReference(firstChildMarkup(*element));
    return node.release();
}

IUseRefDataCfg* KAZConfigFactory::createUseRefDataCfg(tableobj::IElement::ElementType type,
                                                      IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    const std::wstring text = xmlOf(doc);
    return createUseRefDataCfg(type, &text, parent);
}

IUseRefDataCfg* KAZConfigFactory::createUseRefDataCfg(tableobj::IElement::ElementType type,
                                                      IXMLDOMNodePtr node, INodeCfg* parent) {
    const std::wstring text = xmlOf(node);
    return createUseRefDataCfg(type, &text, parent);
}

ILanguageStringCfg* KAZConfigFactory::createLanguageStringCfg(const std::wstring* text,
                                                              INodeCfg* parent) {
    return createTyped<ILanguageStringCfg, LanguageStringCfgImpl>(text, parent, std::nullopt);
}

tableobj::IElement* KAZConfigFactory::createDataValue(tableobj::IElement::ElementType type,
                                                      IXMLDOMNodePtr element) {
    using tableobj::IElement;
    switch (type) {
        case IElement::Boolean:
        case IElement::Double:
        case IElement::Integer:
            return tablereader::valueFromText(type, nodeOf(element).text());
        case IElement::String:
            return tablereader::valueFromText(type, tablereader::stringContent(nodeOf(element)));
        default:
            break;
    }
    IXMLDOMNodePtr first = tablereader::firstElementChild(nodeOf(element));
    if (first == nullptr) return nullptr;
    switch (type) {
        case IElement::Column:
            return createColumn(first);
        case IElement::Columns:
            return createColumns(first);
        case IElement::Table:
            return createTable(first);
        case IElement::Tables:
            return createTables(first);
        case IElement::TablesCollection:
            return createTablesCollection(first);
        default:
            return nullptr;
    }
}

tableobj::IColumn* KAZConfigFactory::createColumn(IXMLDOMNodePtr node) {
    return tablereader::readColumn(nodeOf(node));
}

tableobj::IColumns* KAZConfigFactory::createColumns(IXMLDOMNodePtr node) {
    return tablereader::readColumns(nodeOf(node));
}

tableobj::ITable* KAZConfigFactory::createTable(IXMLDOMNodePtr node) {
    return tablereader::readTable(nodeOf(node));
}

tableobj::ITables* KAZConfigFactory::createTables(IXMLDOMNodePtr node) {
    return tablereader::readTables(nodeOf(node));
}

tableobj::ITablesCollection* KAZConfigFactory::createTablesCollection(IXMLDOMNodePtr node) {
    return tablereader::readTablesCollection(nodeOf(node));
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
    return createFromElement<IExtParamsCfg, ExtParamsCfgImpl>(text, parent, L"ExtParams");
}

IExtParamCfg* KAZConfigFactory::createExtParamCfg(const std::wstring* text, INodeCfg* parent) {
    return createFromElement<IExtParamCfg, ExtParamCfgImpl>(text, parent, L"ExtParam");
}

IParamSetsCfg* KAZConfigFactory::createParamSetsCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createParamSetsCfg(&text, parent);
}

IParamSetsCfg* KAZConfigFactory::createParamSetsCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createParamSetsCfg(&text, parent);
}

IParamSetCfg* KAZConfigFactory::createParamSetCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createParamSetCfg(&text, parent);
}

IParamSetCfg* KAZConfigFactory::createParamSetCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createParamSetCfg(&text, parent);
}

IParamCfg* KAZConfigFactory::createParamCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createParamCfg(&text, parent);
}

IParamCfg* KAZConfigFactory::createParamCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createParamCfg(&text, parent);
}

IXValueCfg* KAZConfigFactory::createXValueCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createXValueCfg(&text, parent);
}

IXValueCfg* KAZConfigFactory::createXValueCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createXValueCfg(&text, parent);
}

IExtParamsCfg* KAZConfigFactory::createExtParamsCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createExtParamsCfg(&text, parent);
}

IExtParamsCfg* KAZConfigFactory::createExtParamsCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createExtParamsCfg(&text, parent);
}

IExtParamCfg* KAZConfigFactory::createExtParamCfg(IXMLDOMDocument2Ptr doc, INodeCfg* parent) {
    std::wstring text = xmlOf(doc);
    return createExtParamCfg(&text, parent);
}

IExtParamCfg* KAZConfigFactory::createExtParamCfg(IXMLDOMNodePtr node, INodeCfg* parent) {
    std::wstring text = xmlOf(node);
    return createExtParamCfg(&text, parent);
}

IParamSetCfg* KAZConfigFactory::createParamSetCfg(INodeCfg* parent, IXMLDOMNodePtr node) {
    return createParamSetCfg(std::move(node), parent);
}

IParamSetsCfg* KAZConfigFactory::createParamSetsCfg(INodeCfg* parent, IXMLDOMNodePtr node) {
    return createParamSetsCfg(std::move(node), parent);
}

}  // namespace kaz::kazparser
