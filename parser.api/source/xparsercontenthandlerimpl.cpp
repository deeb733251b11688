#include "xparsercontenthandlerimpl.h"

#include <memory>
#include <string>

#include "nodeerrors.h"
#include "xnodecfgimpl.h"

namespace kaz::kazparser {
namespace {
constexpr const wchar_t* kClassName = L"kaz::kazparser::XParserContentHandlerImpl";
}

long XParserContentHandlerImpl::startElement(const wchar_t*, int, const wchar_t*, int,
                                             const wchar_t* qName, int qNameLength,
                                             kaz::xml::ISAXAttributes* attributes) {
    const std::wstring name(qName, static_cast<std::size_t>(qNameLength));
    const ElementStart element{name, attributes, startTagLocation()};
    std::unique_ptr<XNodeCfgImpl> node(new XNodeCfgImpl(element, nextParent()));
    node->locate(element.where);
    XNodeCfgImpl* opened = node.release();  // the stack owns it, even when it cannot grow
    push(opened, opened);
    return kaz::xml::S_OK;
}

long XParserContentHandlerImpl::endElement(const wchar_t*, int, const wchar_t*, int,
                                           const wchar_t* qName, int qNameLength) {
    topContent()->endOfContent();
    INodeCfg* child = pop();
    if (top() == nullptr) return kaz::xml::S_OK;
    std::unique_ptr<INodeCfg> refused(child);
    if (top()->setChild(child)) {
        refused.release();
        return kaz::xml::S_OK;
    }
    errors::parsing(
        L"Syntax error at :'<" + std::wstring(qName, static_cast<std::size_t>(qNameLength)) + L">'",
        KAZ_HERE(kClassName, L"endElement"));
}

long XParserContentHandlerImpl::characters(const wchar_t* chars, int length) {
    const std::wstring text(chars, static_cast<std::size_t>(length));
    if (topContent() == nullptr)
        errors::parsing(L"Configure invalid at '" + text + L"'",
                        KAZ_HERE(kClassName, L"characters"));
    topContent()->appendText(text);
    return kaz::xml::S_OK;
}

}  // namespace kaz::kazparser
