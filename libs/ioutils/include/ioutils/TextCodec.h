#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "ioutils/Export.h"

namespace ioutils {

// Conversions between wide text (one code point per wchar_t) and UTF-8.
// Malformed input never fails: each bad sequence or unencodable value
// becomes U+FFFD.
IOUTILS_API std::string utf8FromWide(std::wstring_view text);
// What becomes of a surrogate or a value beyond U+10FFFF in UTF-8: U+FFFD,
// or the bytes of its own value (beyond 0x1FFFFF, of 0x1FFFFF), which a
// strict reader refuses where it stands.
enum class Unencodable { Replace, KeepValue };
// The same appended to `out`.
IOUTILS_API void appendUtf8FromWide(std::string& out, std::wstring_view text);
// The same written from `out` on, which has room for 4 bytes a character
// (kMaxUtf8Length), with the choice for unencodable values; answers the end
// of what it wrote.
IOUTILS_API char* encodeUtf8(char* out, std::wstring_view text,
                             Unencodable unencodable = Unencodable::Replace);
inline constexpr std::size_t kMaxUtf8Length = 4;
// The number of UTF-8 bytes encodeUtf8 writes for `c`. Free of
// branches, so that loops summing it vectorize.
inline std::size_t utf8Length(wchar_t c, Unencodable unencodable = Unencodable::Replace) {
    const auto code = static_cast<char32_t>(c);
    return 1 + (code >= 0x80) + (code >= 0x800) +
           (code >= 0x10000 && (code <= 0x10FFFF || unencodable == Unencodable::KeepValue));
}
// The units the fast paths of text scans test at once.
inline constexpr std::size_t kBlock = 16;
// The OR of `lane(units)` over the kBlock wide units from `at`, taken four
// lanes at a time in vector code (GCC and Clang vector extensions). `lane`
// sees unsigned 32-bit lanes.
template <class Lane>
std::uint32_t orOverBlock(const wchar_t* at, Lane lane) {
    static_assert(sizeof(wchar_t) == sizeof(std::uint32_t));
    using Lanes = std::uint32_t __attribute__((vector_size(16)));
    constexpr std::size_t kLanes = sizeof(Lanes) / sizeof(std::uint32_t);
    Lanes bits{};
    for (std::size_t i = 0; i < kBlock; i += kLanes) {
        Lanes units;
        std::memcpy(&units, at + i, sizeof units);
        bits |= lane(units);
    }
    // Folded in halves through general registers: fewer steps than lane by lane.
    std::uint64_t halves[2];
    std::memcpy(halves, &bits, sizeof halves);
    const std::uint64_t both = halves[0] | halves[1];
    return static_cast<std::uint32_t>(both | both >> 32);
}
// Whether the kBlock units from `at` are all ASCII.
inline bool asciiBlock(const wchar_t* at) {
    return orOverBlock(at, [](auto units) { return units; }) < 0x80;
}
inline bool asciiBlock(const char* at) {
    std::uint64_t words[kBlock / sizeof(std::uint64_t)];
    std::memcpy(words, at, sizeof words);
    return ((words[0] | words[1]) & 0x8080808080808080u) == 0;
}
IOUTILS_API std::wstring wideFromUtf8(std::string_view text);
// The same into `out`, reusing its storage.
IOUTILS_API void assignWideFromUtf8(std::wstring& out, std::string_view text);
// UTF-16 code units in the given byte order, surrogate pairs joined.
IOUTILS_API std::wstring wideFromUtf16(std::string_view bytes, bool bigEndian);
// The bytes of a text file: UTF-16 in the order its byte-order mark gives,
// else UTF-8 (a UTF-8 byte-order mark is dropped).
IOUTILS_API std::wstring wideFromTextFile(std::string_view bytes);

}  // namespace ioutils
