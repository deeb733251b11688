#include "xmlsink.h"

#include "tableobj/XmlEscape.h"

namespace tableobj {
namespace {

using namespace std::string_view_literals;

// ` name="value"` with the value escaped, when the value is not empty.
void appendAttribute(std::wstring& out, std::wstring_view name, std::wstring_view value) {
    if (value.empty()) return;
    out.append(L" "sv).append(name).append(L"=\""sv);
    appendEscapedAttribute(out, value);
    out += L'"';
}

}  // namespace

XmlSink& XmlSink::write(const IXmlOut& child) {
    if (ok_) ok_ = child.writeXml(out_);
    return *this;
}

void XmlSink::appendStartTag(std::wstring& out, std::wstring_view element,
                             const TagAttributes& attributes) {
    out.append(L"<"sv).append(element);
    appendAttribute(out, L"name"sv, attributes.name);
    appendAttribute(out, L"desc"sv, attributes.desc);
    appendAttribute(out, L"datatype"sv, attributes.datatype);
    out += L'>';
}

}  // namespace tableobj
