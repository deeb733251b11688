#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "kazexception/KAZExceptionFactory.h"
#include "kazxml/SAX.h"
#include "recorder.h"

using namespace kaz::xml;
using namespace kaz::xml::testing;
using Events = std::vector<std::wstring>;

namespace {

class SAXReaderTest : public ::testing::Test {
protected:
    SAXReaderTest() {
        reader.putContentHandler(&content);
        reader.putErrorHandler(&errors);
    }
    long parse(const std::wstring& text) { return reader.parse(text); }
    // The attributes of the first element as "qName=value".
    std::wstring firstStart(const std::wstring& text) {
        EXPECT_EQ(parse(text), S_OK) << reader.getErrorDescription();
        for (const std::wstring& event : content.all())
            if (event.starts_with(L"start ")) return event;
        return L"";
    }

    SAXXMLReader reader;
    ContentRecorder content;
    ErrorRecorder errors;
};

bool parseCode(long code) { return (code & ~0xFFFL) == XML_E_PARSE_BASE && code != XML_E_PARSE_BASE; }

TEST_F(SAXReaderTest, ReportsEventsInDocumentOrder) {
    EXPECT_EQ(parse(L"<?xml version=\"1.0\"?>\n<?app run fast?><r><a>x</a><b/>"
                    L"<![CDATA[<c>]]></r>"),
              S_OK);
    EXPECT_EQ(content.all(), (Events{L"startDocument", L"pi app run fast", L"start r {}r",
                                     L"start a {}a", L"text x", L"end a", L"start b {}b",
                                     L"end b", L"text <c>", L"end r", L"endDocument"}));
    EXPECT_EQ(content.locatorCalls, 1);
    EXPECT_TRUE(errors.reports.empty());
    EXPECT_EQ(reader.getErrorDescription(), L"");
}

TEST_F(SAXReaderTest, LocatorAnswersTheCurrentLine) {
    int line = 0;
    content.react = [&](const std::wstring& event) {
        if (event == L"start b {}b") content.locator->getLineNumber(&line);
        return S_OK;
    };
    EXPECT_EQ(parse(L"<a>\n\n<b/></a>"), S_OK);
    EXPECT_EQ(line, 3);
}

TEST_F(SAXReaderTest, CharacterDataArrivesWhole) {
    struct Case {
        const wchar_t* text;
        const wchar_t* data;
    };
    const Case cases[] = {
        {L"<a>x &amp; y</a>", L"x & y"},
        {L"<a>&lt;&gt;&quot;&apos;&#65;&#x42;&#233;</a>", L"<>\"'AB\u00e9"},
        {L"<a>one<![CDATA[ & two ]]>three</a>", L"one & two three"},
        {L"<a>&#38;#38;</a>", L"&#38;"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(c.text)));
        content.events.clear();
        ASSERT_EQ(parse(c.text), S_OK);
        EXPECT_EQ(content.all()[2], std::wstring(L"text ") + c.data);
    }
}

TEST_F(SAXReaderTest, AttributeValuesAreDecoded) {
    struct Case {
        const wchar_t* value;  // as written between the quotes
        const wchar_t* expected;
    };
    const Case cases[] = {
        {L"a &amp; b", L"a & b"},
        {L"&#38;", L"&"},
        {L"&#x26;&#x26;", L"&&"},
        {L"&amp;#38;", L"&#38;"},
        {L"&amp;amp;", L"&amp;"},
        {L"&#38;#38;#38;", L"&#38;#38;"},
        {L"&lt;&gt;&quot;&apos;", L"<>\"'"},
        {L"&#233;\u20ac", L"\u00e9\u20ac"},
        {L"tab\there&#9;", L"tab here\t"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(c.value)));
        content.events.clear();
        EXPECT_EQ(firstStart(std::wstring(L"<e v=\"") + c.value + L"\"/>"),
                  std::wstring(L"start e {}e v=") + c.expected);
    }
}

TEST_F(SAXReaderTest, NamespaceDeclarationsComeFirstAsAttributes) {
    const std::wstring text =
        L"<p:e z=\"1\" xmlns:p=\"urn:p\" p:a=\"2\" xmlns=\"urn:d\" b=\"3\"><f/></p:e>";
    ISAXAttributes* seen = nullptr;
    std::vector<std::wstring> answers;
    content.react = [&](const std::wstring& event) {
        if (!event.starts_with(L"start p:e")) return S_OK;
        auto text = [&](long result, const wchar_t* s, int n) {
            answers.push_back(failed(result) ? L"failed" : std::wstring(s, n));
        };
        seen = nullptr;
        return S_OK;
    };
    (void)seen;
    (void)text;
    EXPECT_EQ(parse(text), S_OK);
}

}  // namespace
