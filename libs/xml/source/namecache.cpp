#include "namecache.h"

#include "libxmlsupport.h"

namespace kaz::xml::detail {

bool NameCache::interned(const xmlChar* text) const {
    return text == nullptr || (dict_ != nullptr && xmlDictOwns(dict_, text) == 1);
}

namespace {

template <class Map, class Make>
const typename Map::mapped_type& remembered(Map& map, const typename Map::key_type& key,
                                            Make make) {
    auto found = map.find(key);
    if (found == map.end()) found = map.emplace(key, make()).first;
    return found->second;
}

}  // namespace

const WideName& NameCache::name(const xmlChar* prefix, const xmlChar* localName) {
    const auto make = [&] { return WideName{toWide(localName), qualifiedName(prefix, localName)}; };
    if (!interned(prefix) || !interned(localName)) return unshared_.emplace_back(make());
    return remembered(names_, {prefix, localName}, make);
}

const WideName& NameCache::declarationName(const xmlChar* prefix) {
    const auto make = [&] {
        if (prefix == nullptr) return WideName{L"xmlns", L"xmlns"};
        std::wstring local = toWide(prefix);
        return WideName{local, L"xmlns:" + local};
    };
    if (!interned(prefix)) return unshared_.emplace_back(make());
    return remembered(declarations_, prefix, make);
}

const std::wstring& NameCache::namespaceName(const xmlChar* uri) {
    const auto make = [&] { return detail::namespaceName(uri); };
    if (!interned(uri)) return unsharedNamespaces_.emplace_back(make());
    return remembered(namespaces_, uri, make);
}

}  // namespace kaz::xml::detail
