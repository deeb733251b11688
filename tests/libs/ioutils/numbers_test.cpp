#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include "ioutils/Numbers.h"

namespace {

using namespace ioutils;

TEST(Numbers, ParseTakesTheLongestNumericPrefix) {
    struct Case {
        const wchar_t* text;
        double real;
        int integer;
    };
    const Case cases[] = {
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
    };
    for (const Case& c : cases) {
        EXPECT_EQ(parseDouble(c.text), c.real) << c.text;
        EXPECT_EQ(parseInt(c.text), c.integer) << c.text;
    }
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
    EXPECT_EQ(parseDouble(L"0.5"), 0.5);
    for (double value :
         {0.1, 1e300, -0.0, 5e-324, 123456789.125, std::numeric_limits<double>::max()}) {
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
