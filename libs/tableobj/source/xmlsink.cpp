#include "xmlsink.h"

#include "tableobj/XmlEscape.h"

namespace tableobj {
namespace {

// ` name="value"` with the value escaped, when the value is not empty.
void appendAttribute(std::wstring& out, const wchar_t* name, std::wstring_view value) {
    if (value.empty()) return;
    out.append(L" ").append(name).append(L"=\"");
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
    out.append(L"<").append(element);
    appendAttribute(out, L"name", attributes.name);
    appendAttribute(out, L"desc", attributes.desc);
    appendAttribute(out, L"datatype", attributes.datatype);
    out += L'>';
}

}  // namespace tableobj
