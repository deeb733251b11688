#include "languagestringcfgimpl.h"

#include "kazparser/XmlEscaping.h"

namespace kaz::kazparser {

const std::wstring& LanguageStringCfgImpl::getName() const {
    static const std::wstring name = L"UseLanguageString";
    return name;
}

bool LanguageStringCfgImpl::writeXml(IXmlWriter& out) const {
    std::wstring text = id_;
    escapeText(text);
    return writeText(out, text);
}

tableobj::IElement::ElementType LanguageStringCfgImpl::getDataType() const {
    return id_.empty() ? tableobj::IElement::NoValue : tableobj::IElement::String;
}

}  // namespace kaz::kazparser
