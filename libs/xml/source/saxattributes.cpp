#include "saxattributes.h"

#include <iterator>

#include "libxmlsupport.h"

namespace kaz::xml::detail {
namespace {

constexpr wchar_t kCData[] = L"CDATA";

const char* chars(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

long answer(const std::wstring& text, const wchar_t** out, int* length) {
    if (out == nullptr || length == nullptr) return E_POINTER;
    *out = text.c_str();
    *length = static_cast<int>(text.size());
    return S_OK;
}

// A name handed in by the caller; null only when empty.
bool readable(const wchar_t* text, int length) {
    return length >= 0 && (text != nullptr || length == 0);
}

std::wstring_view view(const wchar_t* text, int length) {
    return length == 0 ? std::wstring_view() : std::wstring_view(text, length);
}

}  // namespace

void SAXAttributes::assign(NameCache& names, int namespaceCount, const xmlChar** namespaces,
                           int attributeCount, const xmlChar** attributes) {
    static const std::wstring kNoNamespace;
    count_ = 0;
    for (int i = 0; i < namespaceCount; ++i) {
        Entry& entry = add(kNoNamespace, names.declarationName(namespaces[2 * i]));
        entry.value = names.namespaceName(namespaces[2 * i + 1]);
    }
    for (int i = 0; i < attributeCount; ++i) {
        const xmlChar** a = attributes + 5 * i;
        Entry& entry = add(names.namespaceName(a[2]), names.name(a[1], a[0]));
        assignAttributeValue(entry.value,
                             std::string_view(chars(a[3]), static_cast<std::size_t>(a[4] - a[3])));
    }
}

SAXAttributes::Entry& SAXAttributes::add(const std::wstring& uri, const WideName& name) {
    if (count_ == entries_.size()) entries_.emplace_back();
    Entry& entry = entries_[count_++];
    entry.uri = &uri;
    entry.name = &name;
    return entry;
}

const SAXAttributes::Entry* SAXAttributes::at(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= count_) return nullptr;
    return &entries_[static_cast<std::size_t>(index)];
}

int SAXAttributes::indexOf(const wchar_t* uri, int uriLength, const wchar_t* localName,
                           int localNameLength) const {
    if (!readable(uri, uriLength) || !readable(localName, localNameLength)) return -1;
    for (std::size_t i = 0; i < count_; ++i) {
        if (*entries_[i].uri == view(uri, uriLength) &&
            entries_[i].name->localName == view(localName, localNameLength))
            return static_cast<int>(i);
    }
    return -1;
}

int SAXAttributes::indexOfQName(const wchar_t* qName, int qNameLength) const {
    if (!readable(qName, qNameLength)) return -1;
    for (std::size_t i = 0; i < count_; ++i)
        if (entries_[i].name->qName == view(qName, qNameLength)) return static_cast<int>(i);
    return -1;
}

long SAXAttributes::getLength(int* length) {
    if (length == nullptr) return E_POINTER;
    *length = static_cast<int>(count_);
    return S_OK;
}

long SAXAttributes::getURI(int index, const wchar_t** uri, int* uriLength) {
    const Entry* entry = at(index);
    return entry != nullptr ? answer(*entry->uri, uri, uriLength) : E_INVALIDARG;
}

long SAXAttributes::getLocalName(int index, const wchar_t** localName, int* localNameLength) {
    const Entry* entry = at(index);
    return entry != nullptr ? answer(entry->name->localName, localName, localNameLength)
                            : E_INVALIDARG;
}

long SAXAttributes::getQName(int index, const wchar_t** qName, int* qNameLength) {
    const Entry* entry = at(index);
    return entry != nullptr ? answer(entry->name->qName, qName, qNameLength) : E_INVALIDARG;
}

long SAXAttributes::getName(int index, const wchar_t** uri, int* uriLength,
                            const wchar_t** localName, int* localNameLength, const wchar_t** qName,
                            int* qNameLength) {
    const Entry* entry = at(index);
    if (entry == nullptr) return E_INVALIDARG;
    long result = answer(*entry->uri, uri, uriLength);
    if (succeeded(result)) result = answer(entry->name->localName, localName, localNameLength);
    if (succeeded(result)) result = answer(entry->name->qName, qName, qNameLength);
    return result;
}

long SAXAttributes::getIndexFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                     int localNameLength, int* index) {
    if (index == nullptr) return E_POINTER;
    *index = indexOf(uri, uriLength, localName, localNameLength);
    return *index >= 0 ? S_OK : E_INVALIDARG;
}

long SAXAttributes::getIndexFromQName(const wchar_t* qName, int qNameLength, int* index) {
    if (index == nullptr) return E_POINTER;
    *index = indexOfQName(qName, qNameLength);
    return *index >= 0 ? S_OK : E_INVALIDARG;
}

long SAXAttributes::getType(int index, const wchar_t** type, int* typeLength) {
    if (at(index) == nullptr) return E_INVALIDARG;
    if (type == nullptr || typeLength == nullptr) return E_POINTER;
    *type = kCData;
    *typeLength = static_cast<int>(std::size(kCData) - 1);
    return S_OK;
}

long SAXAttributes::getTypeFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                    int localNameLength, const wchar_t** type, int* typeLength) {
    return getType(indexOf(uri, uriLength, localName, localNameLength), type, typeLength);
}

long SAXAttributes::getTypeFromQName(const wchar_t* qName, int qNameLength, const wchar_t** type,
                                     int* typeLength) {
    return getType(indexOfQName(qName, qNameLength), type, typeLength);
}

long SAXAttributes::getValue(int index, const wchar_t** value, int* valueLength) {
    const Entry* entry = at(index);
    return entry != nullptr ? answer(entry->value, value, valueLength) : E_INVALIDARG;
}

long SAXAttributes::getValueFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                                     int localNameLength, const wchar_t** value, int* valueLength) {
    return getValue(indexOf(uri, uriLength, localName, localNameLength), value, valueLength);
}

long SAXAttributes::getValueFromQName(const wchar_t* qName, int qNameLength, const wchar_t** value,
                                      int* valueLength) {
    return getValue(indexOfQName(qName, qNameLength), value, valueLength);
}

}  // namespace kaz::xml::detail
