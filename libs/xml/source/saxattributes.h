#pragma once

#include <libxml/xmlstring.h>

#include <string>
#include <vector>

#include "kazxml/SAX.h"
#include "namecache.h"

namespace kaz::xml::detail {

// The attributes of the start tag being reported: namespace declarations
// first, then the attributes in document order. The texts it answers stay
// owned by this object until the next start tag.
class SAXAttributes final : public ISAXAttributes {
public:
    // Refills from libxml2's start-tag arrays: `namespaces` holds
    // (prefix, URI) pairs, `attributes` (localname, prefix, URI, value begin,
    // value end) quintuples. Names come from `names`, which must outlive
    // this use; the value strings are reused from tag to tag.
    void assign(NameCache& names, int namespaceCount, const xmlChar** namespaces,
                int attributeCount, const xmlChar** attributes);

    long getLength(int* length) override;
    long getURI(int index, const wchar_t** uri, int* uriLength) override;
    long getLocalName(int index, const wchar_t** localName, int* localNameLength) override;
    long getQName(int index, const wchar_t** qName, int* qNameLength) override;
    long getName(int index, const wchar_t** uri, int* uriLength, const wchar_t** localName,
                 int* localNameLength, const wchar_t** qName, int* qNameLength) override;
    long getIndexFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                          int localNameLength, int* index) override;
    long getIndexFromQName(const wchar_t* qName, int qNameLength, int* index) override;
    long getType(int index, const wchar_t** type, int* typeLength) override;
    long getTypeFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                         int localNameLength, const wchar_t** type, int* typeLength) override;
    long getTypeFromQName(const wchar_t* qName, int qNameLength, const wchar_t** type,
                          int* typeLength) override;
    long getValue(int index, const wchar_t** value, int* valueLength) override;
    long getValueFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                          int localNameLength, const wchar_t** value, int* valueLength) override;
    long getValueFromQName(const wchar_t* qName, int qNameLength, const wchar_t** value,
                           int* valueLength) override;

private:
    struct Entry {
        const std::wstring* uri;
        const WideName* name;
        std::wstring value;
    };

    const Entry* at(int index) const;
    // -1 when absent or when the name cannot be read.
    int indexOf(const wchar_t* uri, int uriLength, const wchar_t* localName,
                int localNameLength) const;
    int indexOfQName(const wchar_t* qName, int qNameLength) const;

    // Sets the next entry, reusing the storage of an earlier tag's entry.
    Entry& add(const std::wstring& uri, const WideName& name);

    std::vector<Entry> entries_;  // the first `count_` are this tag's
    std::size_t count_ = 0;
};

}  // namespace kaz::xml::detail
