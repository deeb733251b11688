#include "xmlsink.h"

#include "tableobj/XmlEscape.h"

namespace tableobj {

XmlSink& XmlSink::write(std::wstring piece) {
    if (ok_) ok_ = out_.write(std::move(piece));
    return *this;
}

XmlSink& XmlSink::write(const IXmlOut& child) {
    if (ok_) ok_ = child.writeXml(out_);
    return *this;
}

std::wstring attribute(const wchar_t* name, std::wstring value) {
    escapeAttribute(value);
    return L" " + std::wstring(name) + L"=\"" + value + L"\"";
}

std::wstring nameAttributes(const INamed& named) {
    std::wstring text;
    if (!named.getName().empty()) text += attribute(L"name", named.getName());
    if (!named.getDesc().empty()) text += attribute(L"desc", named.getDesc());
    return text;
}

std::wstring escapedText(std::wstring text) {
    escapeText(text);
    return text;
}

}  // namespace tableobj
