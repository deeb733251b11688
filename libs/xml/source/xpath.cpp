#include <libxml/hash.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <array>
#include <optional>
#include <string_view>

#include "dom.h"
#include "ioutils/TextCodec.h"
#include "kazxml/PlatformError.h"
#include "libxmlsupport.h"

namespace kaz::xml::detail {
namespace {

using XPathContext = std::unique_ptr<xmlXPathContext, Freer<xmlXPathContext, xmlXPathFreeContext>>;
using XPathObject = std::unique_ptr<xmlXPathObject, Freer<xmlXPathObject, xmlXPathFreeObject>>;

// libxml2 gives XPath errors a code but no message.
std::wstring reasonOf(int code) {
    static constexpr std::array<const wchar_t*, 27> kReasons = {
        L"",
        L"invalid number",
        L"unfinished literal",
        L"literal expected",
        L"variable name expected",
        L"undefined variable",
        L"invalid predicate",
        L"invalid expression",
        L"missing closing parenthesis or bracket",
        L"unknown function",
        L"invalid operand",
        L"value of the wrong type",
        L"wrong number of arguments",
        L"invalid context size",
        L"invalid context position",
        L"out of memory",
        L"syntax error",
        L"resource error",
        L"sub-resource error",
        L"undefined namespace prefix",
        L"encoding error",
        L"invalid character",
        L"invalid context",
        L"stack usage error",
        L"variables are not allowed",
        L"operation limit exceeded",
        L"recursion limit exceeded",
    };
    const int index = code - XML_XPATH_EXPRESSION_OK;
    if (index <= 0 || index >= static_cast<int>(kReasons.size()))
        return L"error " + std::to_wstring(code);
    return kReasons[static_cast<std::size_t>(index)];
}

// Keeps the first error of an evaluation (runs inside libxml2: never throws).
void keepFirstError(void* userData, xmlErrorPtr error) {
    auto* first = static_cast<int*>(userData);
    if (error != nullptr && *first == 0) *first = error->code;
}

// Stands for every function libxml2 does not know, which it would otherwise
// announce on stderr instead of through the context's error callback.
void unknownFunction(xmlXPathParserContextPtr ctxt, int) {
    xmlXPathErr(ctxt, XPATH_UNKNOWN_FUNC_ERROR);
}

xmlXPathFunction lookUpFunction(void* data, const xmlChar* name, const xmlChar* uri) {
    auto* context = static_cast<xmlXPathContext*>(data);
    void* known = xmlHashLookup2(context->funcHash, name, uri);
    return known != nullptr ? reinterpret_cast<xmlXPathFunction>(known) : unknownFunction;
}

bool nameChar(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') ||
           c == L'_' || c == L'-' || c == L'.' || c >= 0x80;
}

// The qualified name around the colon at `colon`; empty without a prefix
// or a local part.
std::wstring_view nameAround(std::wstring_view text, std::size_t colon) {
    std::size_t start = colon;
    std::size_t end = colon + 1;
    while (start > 0 && nameChar(text[start - 1])) --start;
    while (end < text.size() && nameChar(text[end])) ++end;
    if (start == colon || end == colon + 1) return {};
    return text.substr(start, end - start);
}

// A variable ("$p:v") or a function call ("p:f(") with a prefix. No prefix
// is bound in our expressions, and libxml2 would print that error on stderr
// instead of reporting it.
std::optional<std::wstring> prefixedName(std::wstring_view expression) {
    for (std::size_t i = 0; i < expression.size(); ++i) {
        const wchar_t c = expression[i];
        if (c == L'"' || c == L'\'') {  // a literal
            i = expression.find(c, i + 1);
            if (i == expression.npos) return std::nullopt;
        } else if (expression.substr(i, 2) == L"::") {  // an axis
            ++i;
        } else if (c == L':') {
            const std::wstring_view name = nameAround(expression, i);
            if (name.empty()) continue;
            const auto start = static_cast<std::size_t>(name.data() - expression.data());
            const std::size_t next = expression.find_first_not_of(L" \t\r\n", start + name.size());
            const bool called = next != expression.npos && expression[next] == L'(';
            if (called || (start > 0 && expression[start - 1] == L'$')) return std::wstring(name);
        }
    }
    return std::nullopt;
}

[[noreturn]] void throwInvalid(const std::wstring& expression, const std::wstring& reason) {
    throw PlatformError(E_FAIL, L"invalid XPath expression \"" + expression + L"\": " + reason,
                        L"XPath");
}

XPathObject evaluate(xmlDocPtr doc, xmlNodePtr context, const std::wstring& expression) {
    if (expression.find(L'\0') != std::wstring::npos) throwInvalid(expression, L"null character");
    if (auto name = prefixedName(expression))
        throwInvalid(expression, L"undefined namespace prefix in \"" + *name + L"\"");
    XPathContext xpath(xmlXPathNewContext(doc));
    if (!xpath) throw std::bad_alloc();
    int firstError = 0;
    xpath->error = keepFirstError;
    xpath->userData = &firstError;
    xmlXPathRegisterFuncLookup(xpath.get(), lookUpFunction, xpath.get());
    xpath->node = context;
    const std::string utf8 = ioutils::utf8FromWide(expression);
    XPathObject result(xmlXPathEval(asXmlChars(utf8), xpath.get()));
    if (!result) throwInvalid(expression, reasonOf(firstError));
    return result;
}

}  // namespace

std::vector<IXMLDOMNodePtr> select(const Owner& owner, xmlDocPtr doc, xmlNodePtr context,
                                   const std::wstring& expression, std::size_t limit) {
    std::vector<IXMLDOMNodePtr> nodes;
    const XPathObject result = evaluate(doc, context, expression);
    if (result->type != XPATH_NODESET || result->nodesetval == nullptr) return nodes;
    xmlNodeSetPtr set = result->nodesetval;
    xmlXPathNodeSetSort(set);
    for (int i = 0; i < set->nodeNr && nodes.size() < limit; ++i)
        if (IXMLDOMNodePtr node = makeNode(owner, set->nodeTab[i])) nodes.push_back(node);
    return nodes;
}

}  // namespace kaz::xml::detail
