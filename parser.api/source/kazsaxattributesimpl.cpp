#include "kazsaxattributesimpl.h"

#include "saxattributes.h"

namespace kaz::kazparser {
namespace {

long answer(const std::wstring& text, const wchar_t** out, int* length) {
    if (out == nullptr || length == nullptr) return kaz::xml::E_POINTER;
    *out = text.c_str();
    *length = static_cast<int>(text.size());
    return kaz::xml::S_OK;
}

}  // namespace

KAZSAXAttributesImpl::KAZSAXAttributesImpl(kaz::xml::ISAXAttributes* wrapped)
    : wrapped_(wrapped), length_(wrapped == nullptr ? 0 : attributeCount(*wrapped)) {}

long KAZSAXAttributesImpl::getLength(int* length) {
    return wrapped_->getLength(length);
}

long KAZSAXAttributesImpl::getURI(int index, const wchar_t** uri, int* uriLength) {
    return wrapped_->getURI(index, uri, uriLength);
}

long KAZSAXAttributesImpl::getLocalName(int index, const wchar_t** localName,
                                        int* localNameLength) {
    return wrapped_->getLocalName(index, localName, localNameLength);
}

long KAZSAXAttributesImpl::getQName(int index, const wchar_t** qName, int* qNameLength) {
    return wrapped_->getQName(index, qName, qNameLength);
}

long KAZSAXAttributesImpl::getName(int index, const wchar_t** uri, int* uriLength,
                                   const wchar_t** localName, int* localNameLength,
                                   const wchar_t** qName, int* qNameLength) {
    return wrapped_->getName(index, uri, uriLength, localName, localNameLength, qName, qNameLength);
}

long KAZSAXAttributesImpl::getIndexFromName(const wchar_t* uri, int uriLength,
                                            const wchar_t* localName, int localNameLength,
                                            int* index) {
    return wrapped_->getIndexFromName(uri, uriLength, localName, localNameLength, index);
}

long KAZSAXAttributesImpl::getIndexFromQName(const wchar_t* qName, int qNameLength, int* index) {
    return wrapped_->getIndexFromQName(qName, qNameLength, index);
}

long KAZSAXAttributesImpl::getType(int index, const wchar_t** type, int* typeLength) {
    return wrapped_->getType(index, type, typeLength);
}

long KAZSAXAttributesImpl::getTypeFromName(const wchar_t* uri, int uriLength,
                                           const wchar_t* localName, int localNameLength,
                                           const wchar_t** type, int* typeLength) {
    return wrapped_->getTypeFromName(uri, uriLength, localName, localNameLength, type, typeLength);
}

long KAZSAXAttributesImpl::getTypeFromQName(const wchar_t* qName, int qNameLength,
                                            const wchar_t** type, int* typeLength) {
    return wrapped_->getTypeFromQName(qName, qNameLength, type, typeLength);
}

std::wstring* KAZSAXAttributesImpl::rewrittenAt(int index) {
    for (auto& [at, value] : rewritten_)
        if (at == index) return &value;
    return nullptr;
}

long KAZSAXAttributesImpl::getValue(int index, const wchar_t** value, int* valueLength) {
    if (const std::wstring* rewritten = rewrittenAt(index))
        return answer(*rewritten, value, valueLength);
    return wrapped_->getValue(index, value, valueLength);
}

long KAZSAXAttributesImpl::getValueFromName(const wchar_t* uri, int uriLength,
                                            const wchar_t* localName, int localNameLength,
                                            const wchar_t** value, int* valueLength) {
    return wrapped_->getValueFromName(uri, uriLength, localName, localNameLength, value,
                                      valueLength);
}

long KAZSAXAttributesImpl::getValueFromQName(const wchar_t* qName, int qNameLength,
                                             const wchar_t** value, int* valueLength) {
    int index = -1;
    const long result = wrapped_->getIndexFromQName(qName, qNameLength, &index);
    return kaz::xml::failed(result) ? result : getValue(index, value, valueLength);
}

void KAZSAXAttributesImpl::setValue(int index, const std::wstring& value) {
    if (index < 0 || index >= length_) return;
    if (std::wstring* rewritten = rewrittenAt(index))
        *rewritten = value;
    else
        rewritten_.emplace_back(index, value);
}

}  // namespace kaz::kazparser
