#include "ioutils/Numbers.h"

#include <locale.h>
#include <algorithm>
#include <charconv>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cwctype>
#include <limits>
#include <string>

namespace ioutils {
namespace {

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

std::size_t skipBlanks(std::wstring_view text) {
    std::size_t pos = 0;
    while (pos < text.size() && std::iswspace(static_cast<wint_t>(text[pos]))) ++pos;
    return pos;
}

std::size_t skipDigits(std::wstring_view text, std::size_t pos) {
    while (pos < text.size() && isDigit(text[pos])) ++pos;
    return pos;
}

bool startsWithWord(std::wstring_view text, std::size_t pos, std::wstring_view word) {
    if (text.size() - pos < word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (std::towlower(static_cast<wint_t>(text[pos + i])) != static_cast<wint_t>(word[i]))
            return false;
    return true;
}

// Length of the decimal number at `pos` (digits, point, exponent); 0 if none.
std::size_t decimalLength(std::wstring_view text, std::size_t pos) {
    std::size_t end = skipDigits(text, pos);
    bool digits = end > pos;
    if (end < text.size() && text[end] == L'.') {
        const std::size_t fraction = skipDigits(text, end + 1);
        digits = digits || fraction > end + 1;
        end = fraction;
    }
    if (!digits) return 0;
    if (end < text.size() && (text[end] == L'e' || text[end] == L'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == L'+' || text[exponent] == L'-'))
            ++exponent;
        const std::size_t exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent) end = exponentEnd;
    }
    return end - pos;
}

// The value of the ASCII number `text` (no sign); from_chars gives the
// correctly rounded value, and strtod in the C locale the infinity or zero
// of a number out of range.
double decimalValue(std::wstring_view text) {
    char stack[64];
    std::string heap;
    char* ascii = stack;
    if (text.size() >= sizeof stack) {
        heap.resize(text.size() + 1);
        ascii = heap.data();
    }
    std::copy(text.begin(), text.end(), ascii);
    double value = 0.0;
    if (std::from_chars(ascii, ascii + text.size(), value).ec != std::errc::result_out_of_range)
        return value;
    ascii[text.size()] = '\0';
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t{});
    return strtod_l(ascii, nullptr, cLocale);
}

}  // namespace

double parseDouble(std::wstring_view text) {
    std::size_t pos = skipBlanks(text);
    bool negative = false;
    if (pos < text.size() && (text[pos] == L'+' || text[pos] == L'-'))
        negative = text[pos++] == L'-';
    double value = 0.0;
    if (const std::size_t length = decimalLength(text, pos); length > 0)
        value = decimalValue(text.substr(pos, length));
    else if (startsWithWord(text, pos, L"inf"))
        value = HUGE_VAL;
    else if (startsWithWord(text, pos, L"nan"))
        value = std::numeric_limits<double>::quiet_NaN();
    return negative ? -value : value;
}

int parseInt(std::wstring_view text) {
    std::size_t pos = skipBlanks(text);
    bool negative = false;
    if (pos < text.size() && (text[pos] == L'+' || text[pos] == L'-'))
        negative = text[pos++] == L'-';
    long long value = 0;
    for (; pos < text.size() && isDigit(text[pos]); ++pos) {
        value = value * 10 + (text[pos] - L'0');
        if (value > static_cast<long long>(INT_MAX) + 1) break;
    }
    if (negative) value = -value;
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

namespace {

// The text between leading and trailing blanks.
std::wstring_view trimmed(std::wstring_view text) {
    text.remove_prefix(skipBlanks(text));
    while (!text.empty() && std::iswspace(static_cast<wint_t>(text.back()))) text.remove_suffix(1);
    return text;
}

std::size_t signLength(std::wstring_view text) {
    return !text.empty() && (text[0] == L'+' || text[0] == L'-') ? 1 : 0;
}

}  // namespace

bool readDouble(std::wstring_view text, double& value) {
    text = trimmed(text);
    const std::size_t sign = signLength(text);
    const std::size_t length = decimalLength(text, sign);
    const std::wstring_view word = text.substr(sign);
    const bool special = word == L"inf" || word == L"infinity" || word == L"nan";
    if (!special && (length == 0 || sign + length != text.size())) return false;
    value = parseDouble(text);
    return true;
}

bool readInt(std::wstring_view text, int& value) {
    text = trimmed(text);
    const std::size_t sign = signLength(text);
    if (sign == text.size() || skipDigits(text, sign) != text.size()) return false;
    long long result = 0;
    for (std::size_t i = sign; i < text.size(); ++i) {
        result = result * 10 + (text[i] - L'0');
        if (result > static_cast<long long>(INT_MAX) + 1) return false;
    }
    if (text[0] == L'-') result = -result;
    if (result > INT_MAX || result < INT_MIN) return false;
    value = static_cast<int>(result);
    return true;
}

namespace {

// Widens the characters to_chars wrote, in place at the end of `out`.
void appendChars(std::wstring& out, const char* begin, const char* end) {
    const std::size_t at = out.size();
    out.resize(at + static_cast<std::size_t>(end - begin));
    std::copy(begin, end, out.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace

void appendFixed4(std::wstring& out, double value) {
    char buffer[400];
    const auto result =
        std::to_chars(buffer, buffer + sizeof(buffer), value, std::chars_format::fixed, 4);
    appendChars(out, buffer, result.ptr);
}

void appendShortest(std::wstring& out, double value) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), value);
    appendChars(out, buffer, result.ptr);
}

void appendInt(std::wstring& out, long long value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), value);
    appendChars(out, buffer, result.ptr);
}

std::wstring formatFixed4(double value) {
    std::wstring text;
    appendFixed4(text, value);
    return text;
}

std::wstring formatShortest(double value) {
    std::wstring text;
    appendShortest(text, value);
    return text;
}

std::wstring formatInt(long long value) {
    std::wstring text;
    appendInt(text, value);
    return text;
}

}  // namespace ioutils
