#pragma once

#include <libxml/parser.h>

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>

namespace kaz::xml::detail {

// An element's or attribute's name in wide text.
struct WideName {
    std::wstring localName;
    std::wstring qName;  // "prefix:localName", or the local name alone
};

// The wide forms of the names and namespace names of one parse, each
// converted once. libxml2 interns them in its dictionary, which hands out
// one pointer per distinct text for the whole parse, so the pointer is the
// key. A text the dictionary does not own is converted on every call.
// The answers stay valid until the cache is destroyed.
class NameCache {
public:
    void attach(xmlDictPtr dict) { dict_ = dict; }

    const WideName& name(const xmlChar* prefix, const xmlChar* localName);
    // The name of the namespace declaration of `prefix` ("xmlns" for the
    // default namespace, else local name `prefix`, "xmlns:prefix").
    const WideName& declarationName(const xmlChar* prefix);
    // Empty for null.
    const std::wstring& namespaceName(const xmlChar* uri);

private:
    using Key = std::pair<const xmlChar*, const xmlChar*>;
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept {
            const std::hash<const void*> hash;
            return hash(key.first) * 31 + hash(key.second);
        }
    };

    bool interned(const xmlChar* text) const;

    // The names met last, by where their key falls: most lookups end here,
    // without the map's hashing and pointer chasing.
    struct Recent {
        Key key;
        const WideName* name = nullptr;
    };
    static constexpr std::size_t kRecentBits = 8;

    xmlDictPtr dict_ = nullptr;
    std::array<Recent, std::size_t{1} << kRecentBits> recent_{};
    std::unordered_map<Key, WideName, KeyHash> names_;
    std::unordered_map<const xmlChar*, WideName> declarations_;
    std::unordered_map<const xmlChar*, std::wstring> namespaces_;
    std::deque<WideName> unshared_;
    std::deque<std::wstring> unsharedNamespaces_;
};

}  // namespace kaz::xml::detail
