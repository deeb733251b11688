#include <gtest/gtest.h>

#include <string>

#include "tableobj/XmlEscape.h"

namespace {

struct Case {
    const wchar_t* input;
    const wchar_t* text;       // after escapeText
    const wchar_t* attribute;  // after escapeAttribute
};

const Case kCases[] = {
    {L"", L"", L""},
    {L"plain", L"plain", L"plain"},
    {L"R&D", L"R&amp;D", L"R&amp;D"},
    {L"&amp;", L"&amp;", L"&amp;"},
    {L"&Amp", L"&Amp", L"&Amp"},
    {L"&lt;", L"&amp;lt;", L"&amp;lt;"},
    {L"x&", L"x&amp;", L"x&amp;"},
    {L"&", L"&amp;", L"&amp;"},
    {L"&&", L"&amp;&amp;", L"&amp;&amp;"},
    {L"a&b&c", L"a&amp;b&amp;c", L"a&amp;b&amp;c"},
    // The search resumes three characters after a kept "&": the second one is skipped.
    {L"&a&b", L"&a&b", L"&a&b"},
    {L"&a&", L"&a&", L"&a&"},
    {L"a<b>c", L"a&lt;b&gt;c", L"a&lt;b&gt;c"},
    {L"<<>>", L"&lt;&lt;&gt;&gt;", L"&lt;&lt;&gt;&gt;"},
    {L"<&>", L"&lt;&amp;&gt;", L"&lt;&amp;&gt;"},
    {L"say \"hi\"", L"say \"hi\"", L"say &quot;hi&quot;"},
    {L"it's", L"it's", L"it's"},
    {L"\"&\"", L"\"&amp;\"", L"&quot;&amp;&quot;"},
};

TEST(XmlEscape, EscapesTextAndAttributesByTheHistoricalRules) {
    for (const Case& c : kCases) {
        std::wstring text = c.input;
        tableobj::escapeText(text);
        EXPECT_EQ(text, c.text) << L"text of " << c.input;
        std::wstring attribute = c.input;
        tableobj::escapeAttribute(attribute);
        EXPECT_EQ(attribute, c.attribute) << L"attribute of " << c.input;
    }
}

}  // namespace
