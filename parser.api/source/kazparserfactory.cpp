#include "kazparser/KAZConfigFactory.h"

#include <memory>
#include <new>

#include "kazparsercontenthandlerimpl.h"
#include "kazparsererrorhandlerimpl.h"
#include "kazxml/PlatformError.h"
#include "messagesink.h"
#include "nodeerrors.h"
#include "xparsercontenthandlerimpl.h"

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

}  // namespace kaz::kazparser
