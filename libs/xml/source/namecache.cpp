#include "namecache.h"

#include "libxmlsupport.h"

namespace kaz::xml::detail {

bool NameCache::interned(const xmlChar* text) const {
    return text == nullptr || (dict_ != nullptr && xmlDictOwns(dict_, text) == 1);
}

namespace {

// The entry of `key`, made on its first use. Only texts the dictionary owns
// are remembered (checked once, when the entry is made: a pointer found in
// the map is one of them); any other is made again on every call and kept
// in `unshared` while the cache lives.
template <class Map, class Interned, class Make, class Unshared>
const typename Map::mapped_type& remembered(Map& map, const typename Map::key_type& key,
                                            Interned interned, Make make, Unshared& unshared) {
    if (auto found = map.find(key); found != map.end()) return found->second;
    if (!interned()) return unshared.emplace_back(make());
    return map.emplace(key, make()).first->second;
}

}  // namespace

const WideName& NameCache::name(const xmlChar* prefix, const xmlChar* localName) {
    const Key key{prefix, localName};
    const auto mixed = (reinterpret_cast<std::uintptr_t>(prefix) * 31 +
                        reinterpret_cast<std::uintptr_t>(localName)) *
                       std::uint64_t{0x9E3779B97F4A7C15};
    Recent& recent = recent_[mixed >> (64 - kRecentBits)];
    if (recent.name != nullptr && recent.key == key) return *recent.name;
    const WideName& found = remembered(
        names_, key, [&] { return interned(prefix) && interned(localName); },
        [&] {
            return WideName{toWide(localName), qualifiedName(prefix, localName)};
        },
        unshared_);
    // An unshared text's pointer may stand for another text later.
    if (unshared_.empty() || &found != &unshared_.back()) recent = {key, &found};
    return found;
}

const WideName& NameCache::declarationName(const xmlChar* prefix) {
    const auto make = [&] {
        if (prefix == nullptr) return WideName{L"xmlns", L"xmlns"};
        std::wstring local = toWide(prefix);
        return WideName{local, L"xmlns:" + local};
    };
    return remembered(
        declarations_, prefix, [&] { return interned(prefix); }, make, unshared_);
}

const std::wstring& NameCache::namespaceName(const xmlChar* uri) {
    static const std::wstring none;
    if (uri == nullptr) return none;
    return remembered(
        namespaces_, uri, [&] { return interned(uri); }, [&] { return detail::namespaceName(uri); },
        unsharedNamespaces_);
}

}  // namespace kaz::xml::detail
