#include "saxattributes.h"

#include <algorithm>
#include <cwctype>

#include "kazxml/PlatformError.h"

namespace kaz::kazparser {
namespace {

void check(long result, const wchar_t* operation) {
    checkReaderCall(result, L"ISAXAttributes", operation);
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

AttributeView attributeAt(kaz::xml::ISAXAttributes& attributes, int index) {
    const wchar_t *uri = nullptr, *localName = nullptr, *qName = nullptr, *value = nullptr;
    int uriLength = 0, localNameLength = 0, qNameLength = 0, valueLength = 0;
    check(attributes.getName(index, &uri, &uriLength, &localName, &localNameLength, &qName,
                             &qNameLength),
          L"getName");
    check(attributes.getValue(index, &value, &valueLength), L"getValue");
    auto view = [](const wchar_t* text, int length) {
        return std::wstring_view(text, text != nullptr ? static_cast<std::size_t>(length) : 0);
    };
    return {view(qName, qNameLength), view(localName, localNameLength), view(value, valueLength)};
}

bool isNamespaceDeclaration(std::wstring_view qName) {
    return qName == L"xmlns" || qName.starts_with(L"xmlns:");
}

AttributeList readAttributes(const ElementStart& element) {
    AttributeList list;
    readAttributes(element, list);
    return list;
}

void readAttributes(const ElementStart& element, AttributeList& into) {
    std::size_t count = 0;
    forEachAttribute(element, AttributeNaming::Qualified,
                     [&](std::wstring_view name, std::wstring_view value) {
                         if (count == into.size()) into.emplace_back();
                         into[count].first = name;
                         into[count++].second = value;
                     });
    into.resize(count);
}

bool flagValue(std::wstring_view value) {
    constexpr std::wstring_view kTrue = L"true";
    return std::equal(value.begin(), value.end(), kTrue.begin(), kTrue.end(),
                      [](wchar_t c, wchar_t t) {
                          return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c))) == t;
                      });
}

}  // namespace kaz::kazparser
