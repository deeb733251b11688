#include "ioutils/TextCodec.h"

#include <algorithm>
#include <cstring>

namespace ioutils {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool encodable(char32_t c) {
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

// Copies a block of ASCII units, widening or narrowing them (through local
// arrays, which the compiler knows do not overlap, so in vector code).
template <class To, class From>
To* copyBlock(To* out, const From* in) {
    From units[kBlock];
    std::memcpy(units, in, sizeof units);
    To copied[kBlock];
    for (std::size_t i = 0; i < kBlock; ++i) copied[i] = static_cast<To>(units[i]);
    std::memcpy(out, copied, sizeof copied);
    return out + kBlock;
}

constexpr char32_t kLargestFourBytes = 0x1FFFFF;

char* putUtf8(char* out, char32_t c, Unencodable unencodable) {
    if (!encodable(c))
        c = unencodable == Unencodable::Replace ? kReplacement : std::min(c, kLargestFourBytes);
    if (c < 0x80) {
        *out++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *out++ = static_cast<char>(0xC0 | (c >> 6));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        *out++ = static_cast<char>(0xE0 | (c >> 12));
        *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    } else {
        *out++ = static_cast<char>(0xF0 | (c >> 18));
        *out++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

// Decodes one UTF-8 sequence at `pos`, advancing it; overlong forms,
// surrogates and truncated sequences give U+FFFD and consume one byte.
char32_t decodeUtf8(std::string_view text, std::size_t& pos) {
    const auto lead = static_cast<unsigned char>(text[pos]);
    if (lead < 0x80) {
        ++pos;
        return lead;
    }
    int extra = 0;
    char32_t c = 0;
    char32_t minimum = 0;
    if ((lead & 0xE0) == 0xC0) {
        extra = 1, c = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2, c = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3, c = lead & 0x07, minimum = 0x10000;
    } else {
        ++pos;
        return kReplacement;
    }
    if (pos + extra >= text.size()) {  // truncated at the end
        ++pos;
        return kReplacement;
    }
    for (int i = 1; i <= extra; ++i) {
        const auto next = static_cast<unsigned char>(text[pos + i]);
        if ((next & 0xC0) != 0x80) {
            ++pos;
            return kReplacement;
        }
        c = (c << 6) | (next & 0x3F);
    }
    if (c < minimum || !encodable(c)) {
        ++pos;
        return kReplacement;
    }
    pos += extra + 1;
    return c;
}

}  // namespace

// Both directions size their result once (the text is measured first, or
// cut to length after) and copy runs of ASCII without decoding them.
std::string utf8FromWide(std::wstring_view text) {
    std::string out;
    appendUtf8FromWide(out, text);
    return out;
}

void appendUtf8FromWide(std::string& out, std::wstring_view text) {
    std::size_t length = 0;
    for (wchar_t c : text) length += utf8Length(c);
    const std::size_t start = out.size();
    out.resize(start + length);
    encodeUtf8(out.data() + start, text);
}

char* encodeUtf8(char* out, std::wstring_view text, Unencodable unencodable) {
    std::size_t pos = 0;
    for (; pos + kBlock <= text.size(); pos += kBlock) {
        const wchar_t* block = text.data() + pos;
        if (asciiBlock(block)) {
            out = copyBlock(out, block);
        } else {
            for (std::size_t i = 0; i < kBlock; ++i)
                out = putUtf8(out, static_cast<char32_t>(block[i]), unencodable);
        }
    }
    for (; pos < text.size(); ++pos)
        out = putUtf8(out, static_cast<char32_t>(text[pos]), unencodable);
    return out;
}

std::wstring wideFromUtf8(std::string_view text) {
    std::wstring out;
    assignWideFromUtf8(out, text);
    return out;
}

void assignWideFromUtf8(std::wstring& out, std::string_view text) {
    out.resize(text.size());
    wchar_t* at = out.data();
    for (std::size_t pos = 0; pos < text.size();) {
        if (pos + kBlock <= text.size() && asciiBlock(text.data() + pos)) {
            at = copyBlock(at, reinterpret_cast<const unsigned char*>(text.data() + pos));
            pos += kBlock;
        } else {
            // A block's worth decoded before the next test (a sequence may
            // run past it).
            const std::size_t end = std::min(pos + kBlock, text.size());
            while (pos < end) *at++ = static_cast<wchar_t>(decodeUtf8(text, pos));
        }
    }
    out.resize(static_cast<std::size_t>(at - out.data()));
}

std::wstring wideFromUtf16(std::string_view bytes, bool bigEndian) {
    std::wstring out;
    out.reserve(bytes.size() / 2);
    auto unit = [&](std::size_t i) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        return bigEndian ? (first << 8 | second) : (second << 8 | first);
    };
    const std::size_t units = bytes.size() / 2;
    for (std::size_t i = 0; i < units; ++i) {
        char32_t c = unit(2 * i);
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < units) {
            const char32_t low = unit(2 * (i + 1));
            if (low >= 0xDC00 && low <= 0xDFFF) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        out += static_cast<wchar_t>(encodable(c) ? c : kReplacement);
    }
    if (bytes.size() % 2 != 0) out += static_cast<wchar_t>(kReplacement);
    return out;
}

std::wstring wideFromTextFile(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) return wideFromUtf16(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF")) return wideFromUtf16(bytes.substr(2), true);
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return wideFromUtf8(bytes);
}

}  // namespace ioutils
