#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <tuple>

#include "ioutils/IOUtils.h"
#include "ioutils/Numbers.h"
#include "ioutils/TextCodec.h"
#include "kazexception/IKAZException.h"

namespace {

using namespace ioutils;
namespace fs = std::filesystem;

TEST(TextCodec, Utf8RoundTripsEveryPlane) {
    const std::wstring text =
        L"a\u00e9\u4e2d\U0001F600\u007f\u0080\u07ff\u0800\uffff\U00010000\U0010FFFF";
    EXPECT_EQ(wideFromUtf8(utf8FromWide(text)), text);
    EXPECT_EQ(utf8FromWide(L"\u00e9\U0001F600"), "\xC3\xA9\xF0\x9F\x98\x80");
}

TEST(TextCodec, MalformedInputBecomesReplacementCharacters) {
    const std::pair<std::string, std::wstring> utf8[] = {
        {"\xC3", L"\uFFFD"},                      // truncated
        {"\xC3(", L"\uFFFD("},                    // bad continuation
        {"\xC0\xAF", L"\uFFFD\uFFFD"},            // overlong
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},  // surrogate
        {"\xFF!", L"\uFFFD!"},
    };
    for (const auto& [bytes, text] : utf8) EXPECT_EQ(wideFromUtf8(bytes), text) << bytes;
}

TEST(TextCodec, UnencodableValuesAreReplacedOrKeptAsTheirOwnBytes) {
    const std::tuple<wchar_t, std::string> kept[] = {
        {wchar_t(0xD800), "\xED\xA0\x80"},
        {wchar_t(0x110000), "\xF4\x90\x80\x80"},
        {wchar_t(-1), "\xF7\xBF\xBF\xBF"},  // beyond four bytes: the largest they hold
    };
    for (const auto& [value, bytes] : kept) {
        const std::wstring text(1, value);
        EXPECT_EQ(utf8FromWide(text), "\xEF\xBF\xBD");
        char out[kMaxUtf8Length];
        const char* end = encodeUtf8(out, text, Unencodable::KeepValue);
        EXPECT_EQ(std::string(out, static_cast<std::size_t>(end - out)), bytes);
        EXPECT_EQ(utf8Length(value, Unencodable::KeepValue), bytes.size());
    }
}

TEST(TextCodec, Utf16InBothByteOrdersJoinsSurrogatePairs) {
    EXPECT_EQ(wideFromUtf16(std::string("a\0=\xD8\x00\xDE", 6), false), L"a\U0001F600");
    EXPECT_EQ(wideFromUtf16(std::string("\0a\xD8=\xDE\x00", 6), true), L"a\U0001F600");
    // A lone surrogate, then an odd byte.
    EXPECT_EQ(wideFromUtf16(std::string("\x00\xD8!", 3), false), L"\uFFFD\uFFFD");
}

std::wstring readBytes(const std::string& bytes) {
    const fs::path path = fs::temp_directory_path() / "kaz_ioutils_test.txt";
    std::ofstream(path, std::ios::binary) << bytes;
    const std::wstring text = IOUtilsFactory::createIOUtils()->readTextFile(path.wstring());
    fs::remove(path);
    return text;
}

TEST(IOUtils, ReadsUtf8AndUtf16ByTheirByteOrderMarks) {
    EXPECT_EQ(readBytes("<a>\xC3\xA9</a>"), L"<a>\u00e9</a>");
    EXPECT_EQ(readBytes("\xEF\xBB\xBF<a/>"), L"<a/>");
    EXPECT_EQ(readBytes(std::string("\xFF\xFE<\0a\0", 6)), L"<a");
    EXPECT_EQ(readBytes(std::string("\xFE\xFF\0<\0a", 6)), L"<a");
    EXPECT_EQ(readBytes(""), L"");
}

TEST(IOUtils, AMissingFileRaisesAnErrorNamingIt) {
    for (const std::wstring& path :
         {std::wstring(L"/no/such/file.xml"), fs::temp_directory_path().wstring()}) {
        try {
            IOUtilsFactory::createIOUtils()->readTextFile(path);
            ADD_FAILURE() << "no error";
        } catch (kazexception::IKAZException* e) {
            EXPECT_EQ(e->getKind(), kazexception::IKAZException::InvalidData);
            EXPECT_NE(e->getMessage().find(path), std::wstring::npos);
            e->release();
        }
    }
}

TEST(Numbers, ParseTakesTheLongestNumericPrefix) {
    const struct {
        const wchar_t* text;
        double real;
        int integer;
    } cases[] = {
        {L"  2.5", 2.5, 2},
        {L"-0.25xyz", -0.25, 0},
        {L"+7", 7, 7},
        {L"1e3", 1000, 1},
        {L"1e", 1, 1},
        {L".5", 0.5, 0},
        {L"abc", 0, 0},
        {L"", 0, 0},
        {L"- 1", 0, 0},
        {L"99999999999", 99999999999.0, 2147483647},
        {L"-99999999999", -99999999999.0, -2147483647 - 1},
        {L"1,5", 1, 1},
        {L"-infinity", -HUGE_VAL, 0},
        {L" inf1", HUGE_VAL, 0},
        {L"1e400", HUGE_VAL, 1},
        {L"-1e-400", 0, -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(parseDouble(c.text), c.real) << c.text;
        EXPECT_EQ(parseInt(c.text), c.integer) << c.text;
    }
    EXPECT_TRUE(std::isnan(parseDouble(L"nan")));
    EXPECT_EQ(parseDouble(L"0." + std::wstring(80, L'0') + L"125e82"), 12.5);  // longer than 64
}

TEST(Numbers, StrictFormsRefuseAnythingButOneNumber) {
    double real = -1;
    int integer = -1;
    EXPECT_TRUE(readDouble(L" 2.5e1 ", real));
    EXPECT_EQ(real, 25.0);
    EXPECT_TRUE(readInt(L" -42 ", integer));
    EXPECT_EQ(integer, -42);
    for (const wchar_t* bad : {L"", L"abc", L"2.5x", L"1 2", L"+", L"."}) {
        EXPECT_FALSE(readDouble(bad, real)) << bad;
        EXPECT_FALSE(readInt(bad, integer)) << bad;
    }
    EXPECT_FALSE(readInt(L"2147483648", integer));
    EXPECT_FALSE(readInt(L"2.5", integer));
}

TEST(Numbers, WritingIgnoresTheProcessLocaleAndReadsBackExactly) {
    const std::string previous = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // a comma locale, where installed
    EXPECT_EQ(formatFixed4(2.5), L"2.5000");
    EXPECT_EQ(formatFixed4(-0.25), L"-0.2500");
    EXPECT_EQ(formatFixed4(1.23456), L"1.2346");
    for (double value :
         {0.1, 1e300, -0.0, 5e-324, 123456789.125, std::numeric_limits<double>::max(), -HUGE_VAL}) {
        const std::wstring text = formatShortest(value);
        double back = 0;
        ASSERT_TRUE(readDouble(text, back)) << text;
        EXPECT_EQ(std::signbit(back), std::signbit(value));
        EXPECT_EQ(back, value) << text;
    }
    EXPECT_EQ(formatShortest(0.1), L"0.1");
    std::setlocale(LC_NUMERIC, previous.c_str());
}

}  // namespace
