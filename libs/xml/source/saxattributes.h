#pragma once

#include <libxml/xmlstring.h>

#include <string>
#include <vector>

#include "kazxml/SAX.h"

namespace kaz::xml::detail {

// The attributes of the start tag being reported: namespace declarations
// first, then the attributes in document order. The texts it answers stay
// owned by this object until the next start tag.
class SAXAttributes final : public ISAXAttributes {
public:
    // Refills from libxml2's start-tag arrays: `namespaces` holds
    // (prefix, URI) pairs, `attributes` (localname, prefix, URI, value begin,
    // value end) quintuples.
    void assign(int namespaceCount, const xmlChar** namespaces, int attributeCount,
                const xmlChar** attributes);

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
        std::wstring uri;
        std::wstring localName;
        std::wstring qName;
        std::wstring value;
    };

    const Entry* at(int index) const;
    // -1 when absent or when the name cannot be read.
    int indexOf(const wchar_t* uri, int uriLength, const wchar_t* localName,
                int localNameLength) const;
    int indexOfQName(const wchar_t* qName, int qNameLength) const;

    std::vector<Entry> entries_;
};

}  // namespace kaz::xml::detail
