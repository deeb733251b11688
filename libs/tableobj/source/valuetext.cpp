#include "valuetext.h"

#include <cwctype>

#include "ioutils/Numbers.h"
#include "tableobj/XmlEscape.h"

namespace tableobj {

using namespace std::string_view_literals;

namespace {

template <class T>
std::wstring plainText(T value) {
    std::wstring text;
    appendContent(text, value);
    return text;
}

}  // namespace

std::wstring valueText(bool value) {
    return plainText(value);
}
std::wstring valueText(int value) {
    return plainText(value);
}
std::wstring valueText(double value) {
    return plainText(value);
}
std::wstring valueText(const std::wstring& value) {
    return value;
}

void appendContent(std::wstring& out, bool value) {
    out += value ? L"true"sv : L"false"sv;
}
void appendContent(std::wstring& out, int value) {
    ioutils::appendInt(out, value);
}
void appendContent(std::wstring& out, double value) {
    ioutils::appendShortest(out, value);
}
void appendContent(std::wstring& out, const std::wstring& value) {
    appendEscapedText(out, value);
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
