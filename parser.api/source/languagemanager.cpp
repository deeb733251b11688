#include "languagemanager.h"

#include <mutex>

#include "kazxml/Document.h"

namespace kaz::kazparser {

LanguageManager& LanguageManager::instance() {
    static LanguageManager manager;
    return manager;
}

LanguageManager::~LanguageManager() = default;

bool LanguageManager::load(const std::wstring& resource) {
    if (resource.empty()) return false;
    const kaz::xml::IXMLDOMDocument2Ptr doc = kaz::xml::Document::create();
    if (!doc->loadXML(resource)) return false;
    // The new table is complete before it is installed, so that a lookup
    // never sees a half-loaded language.
    std::map<std::wstring, std::wstring> table;
    for (const kaz::xml::IXMLDOMNodePtr& element : doc->selectNodes(L"//*/*")) {
        const auto id = element->attribute(L"id");
        if (id && !id->empty()) table.insert_or_assign(*id, element->text());
    }
    {
        std::unique_lock lock(mutex_);
        table_.swap(table);
    }  // the previous table is freed after the lock is given back
    return true;
}

bool LanguageManager::lookup(const std::wstring& id, std::wstring& text) const {
    std::shared_lock lock(mutex_);
    const auto found = table_.find(id);
    if (found == table_.end()) return false;
    text = found->second;
    return true;
}

}  // namespace kaz::kazparser
