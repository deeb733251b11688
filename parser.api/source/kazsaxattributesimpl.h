#pragma once

#include <map>
#include <string>

#include "kazxml/SAX.h"

namespace kaz::kazparser {

// The attribute list handed to node constructors: the reader's attributes
// with values that may be rewritten (the root-directory macro). Lives for
// one startElement call.
class KAZSAXAttributesImpl final : public kaz::xml::ISAXAttributes {
public:
    explicit KAZSAXAttributesImpl(kaz::xml::ISAXAttributes* wrapped);
    ~KAZSAXAttributesImpl() override = default;

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
    // The value as rewritten, read from the wrapped list on first use.
    long getValue(int index, const wchar_t** value, int* valueLength) override;
    long getValueFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                          int localNameLength, const wchar_t** value, int* valueLength) override;
    long getValueFromQName(const wchar_t* qName, int qNameLength, const wchar_t** value,
                           int* valueLength) override;

    // Rewrites the value at `index`; an index outside the list is ignored.
    void setValue(int index, const std::wstring& value);

private:
    // The stored value at `index`, read from the wrapped list on first use.
    const std::wstring* valueAt(int index);

    kaz::xml::ISAXAttributes* wrapped_;
    int length_ = 0;
    std::map<int, std::wstring> valuesByIndex_;
    std::map<std::wstring, std::wstring> valuesByQName_;
};

}  // namespace kaz::kazparser
