#include "languagestringcfgimpl.h"

#include "nodekinds.h"

#include "languagemanager.h"

namespace kaz::kazparser {

const std::wstring& LanguageStringCfgImpl::getName() const {
    return kinds::languageStringTag();
}

bool LanguageStringCfgImpl::writeXml(IXmlWriter& out) const {
    return writeText(out, id_, Content::Escaped);
}

// An unresolved ID is shown as it is, so that a missing text stays visible.
std::wstring LanguageStringCfgImpl::getDisplayText() const {
    std::wstring text;
    return LanguageManager::instance().lookup(id_, text) ? text : id_;
}

tableobj::IElement::ElementType LanguageStringCfgImpl::getDataType() const {
    return id_.empty() ? tableobj::IElement::NoValue : tableobj::IElement::String;
}

}  // namespace kaz::kazparser
