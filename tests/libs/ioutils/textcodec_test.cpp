#include <gtest/gtest.h>

#include "ioutils/TextCodec.h"

namespace {

using namespace ioutils;

TEST(TextCodec, Utf8RoundTripsEveryPlane) {
    const std::wstring text =
        L"a\u00e9\u4e2d\U0001F600\u007f\u0080\u07ff\u0800\uffff\U00010000\U0010FFFF";
    EXPECT_EQ(wideFromUtf8(utf8FromWide(text)), text);
    EXPECT_EQ(utf8FromWide(L"\u00e9\U0001F600"), "\xC3\xA9\xF0\x9F\x98\x80");
}

TEST(TextCodec, MalformedInputBecomesReplacementCharacters) {
    struct Case {
        std::string bytes;
        std::wstring text;
    };
    const Case cases[] = {
        {"\xC3", L"\uFFFD"},                      // truncated
        {"\xC3(", L"\uFFFD("},                    // bad continuation
        {"\xC0\xAF", L"\uFFFD\uFFFD"},            // overlong
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},  // surrogate
        {"\xFF"
         "a",
         L"\uFFFDa"},
    };
    for (const Case& c : cases) EXPECT_EQ(wideFromUtf8(c.bytes), c.text) << c.bytes;
    EXPECT_EQ(utf8FromWide(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8FromWide(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
}

TEST(TextCodec, Utf16InBothByteOrdersJoinsSurrogatePairs) {
    EXPECT_EQ(wideFromUtf16(std::string("a\0=\xD8\x00\xDE", 6), false), L"a\U0001F600");
    EXPECT_EQ(wideFromUtf16(std::string("\0a\xD8=\xDE\x00", 6), true), L"a\U0001F600");
    EXPECT_EQ(wideFromUtf16(std::string("\x00\xD8"
                                        "a",
                                        3),
                            false),
              L"\uFFFD\uFFFD");
}

}  // namespace
