#include "saxattributes.h"

#include <algorithm>
#include <cwctype>

#include "kazxml/PlatformError.h"

namespace kaz::kazparser {
namespace {

void check(long result, const wchar_t* operation) {
    checkReaderCall(result, L"ISAXAttributes", operation);
}

bool isNamespaceDeclaration(std::wstring_view qName) {
    return qName == L"xmlns" || qName.starts_with(L"xmlns:");
}

}  // namespace

void checkReaderCall(long result, const wchar_t* interfaceName, const wchar_t* operation) {
    if (kaz::xml::failed(result))
        throw kaz::xml::PlatformError(result,
                                      std::wstring(interfaceName) + L"::" + operation + L" failed",
                                      std::wstring(L"kaz::xml::") + interfaceName);
}

int attributeCount(kaz::xml::ISAXAttributes& attributes) {
    int length = 0;
    check(attributes.getLength(&length), L"getLength");
    return length;
}

std::wstring attributeQName(kaz::xml::ISAXAttributes& attributes, int index) {
    const wchar_t* name = nullptr;
    int length = 0;
    check(attributes.getQName(index, &name, &length), L"getQName");
    return std::wstring(name, static_cast<std::size_t>(length));
}

std::wstring attributeValue(kaz::xml::ISAXAttributes& attributes, int index) {
    const wchar_t* value = nullptr;
    int length = 0;
    check(attributes.getValue(index, &value, &length), L"getValue");
    return std::wstring(value, static_cast<std::size_t>(length));
}

std::wstring attributeLocalName(kaz::xml::ISAXAttributes& attributes, int index) {
    const wchar_t* name = nullptr;
    int length = 0;
    check(attributes.getLocalName(index, &name, &length), L"getLocalName");
    return std::wstring(name, static_cast<std::size_t>(length));
}

AttributeList readAttributes(kaz::xml::ISAXAttributes* attributes, AttributeNaming naming) {
    AttributeList list;
    if (attributes == nullptr) return list;
    const int count = attributeCount(*attributes);
    list.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        std::wstring qName = attributeQName(*attributes, i);
        if (naming == AttributeNaming::Qualified) {
            list.emplace_back(std::move(qName), attributeValue(*attributes, i));
        } else if (!isNamespaceDeclaration(qName)) {
            list.emplace_back(attributeLocalName(*attributes, i), attributeValue(*attributes, i));
        }
    }
    return list;
}

bool flagValue(const std::wstring& value) {
    static const std::wstring kTrue = L"true";
    return std::equal(value.begin(), value.end(), kTrue.begin(), kTrue.end(),
                      [](wchar_t c, wchar_t t) {
                          return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c))) == t;
                      });
}

}  // namespace kaz::kazparser
