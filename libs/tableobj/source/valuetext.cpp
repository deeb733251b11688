#include "valuetext.h"

#include <cwctype>

#include "ioutils/Numbers.h"

namespace tableobj {

std::wstring valueText(bool value) {
    return value ? L"true" : L"false";
}
std::wstring valueText(int value) {
    return ioutils::formatInt(value);
}
std::wstring valueText(double value) {
    return ioutils::formatShortest(value);
}
std::wstring valueText(const std::wstring& value) {
    return value;
}

template <>
bool parseValue<bool>(const std::wstring& text) {
    if (text == L"1") return true;
    std::wstring lower = text;
    for (wchar_t& c : lower) c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return lower == L"true";
}

template <>
int parseValue<int>(const std::wstring& text) {
    return ioutils::parseInt(text);
}

template <>
double parseValue<double>(const std::wstring& text) {
    return ioutils::parseDouble(text);
}

template <>
std::wstring parseValue<std::wstring>(const std::wstring& text) {
    return text;
}

}  // namespace tableobj
