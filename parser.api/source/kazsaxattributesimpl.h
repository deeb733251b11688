#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kazxml/SAX.h"

namespace kaz::kazparser {

// The attribute list handed to node constructors: the reader's attributes
// with values that may be rewritten (the root-directory macro). Only the
// rewritten values are held here; all else is answered by the reader's
// list. Lives for one startElement call.
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
    // The value as rewritten, else the reader's.
    long getValue(int index, const wchar_t** value, int* valueLength) override;
    long getValueFromName(const wchar_t* uri, int uriLength, const wchar_t* localName,
                          int localNameLength, const wchar_t** value, int* valueLength) override;
    long getValueFromQName(const wchar_t* qName, int qNameLength, const wchar_t** value,
                           int* valueLength) override;

    // Rewrites the value at `index`; an index outside the list is ignored.
    void setValue(int index, const std::wstring& value);

private:
    // The rewritten value at `index`; null when it was not rewritten.
    std::wstring* rewrittenAt(int index);

    kaz::xml::ISAXAttributes* wrapped_;
    int length_ = 0;
    std::vector<std::pair<int, std::wstring>> rewritten_;  // (index, value)
};

}  // namespace kaz::kazparser
