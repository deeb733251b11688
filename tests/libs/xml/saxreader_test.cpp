#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "kazexception/KAZExceptionFactory.h"
#include "kazxml/SAX.h"
#include "recorder.h"

using namespace kaz::xml;
using namespace kaz::xml::test;
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

bool parseCode(long code) {
    return (code & ~0xFFFL) == XML_E_PARSE_BASE && code != XML_E_PARSE_BASE;
}

TEST_F(SAXReaderTest, ReportsEventsInDocumentOrder) {
    int line = 0;
    content.react = [&](const std::wstring& event) {
        if (event == L"start b {}b") content.locator->getLineNumber(&line);
        return S_OK;
    };
    EXPECT_EQ(parse(L"<?xml version=\"1.0\"?>\n<?app run fast?><r><a>x</a>\n<b/>"
                    L"<![CDATA[<c>]]></r>"),
              S_OK);
    EXPECT_EQ(content.all(),
              (Events{L"startDocument", L"pi app run fast", L"start r {}r", L"start a {}a",
                      L"text x", L"end a", L"text \n", L"start b {}b", L"end b", L"text <c>",
                      L"end r", L"endDocument"}));
    EXPECT_EQ(content.locatorCalls, 1);
    EXPECT_EQ(line, 3);
    EXPECT_TRUE(errors.reports.empty());
    EXPECT_EQ(reader.getErrorDescription(), L"");
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
    content.events.clear();  // namespace names come the same way
    EXPECT_EQ(firstStart(L"<p:e xmlns:p=\"u&amp;v&#38;#38;\"/>"),
              L"start p:e {u&v&#38;}e xmlns:p=u&v&#38;");
}

TEST_F(SAXReaderTest, NamespaceDeclarationsComeFirstAsAttributes) {
    Events names;  // uri|localName|qName|type of each attribute, then lookups
    content.inspect = [&](ISAXAttributes& a) {
        if (!names.empty()) return;
        const wchar_t *uri, *local, *qName, *type;
        int uriLength, localLength, qNameLength, typeLength, count = 0, index = -1;
        a.getLength(&count);
        for (int i = 0; i < count; ++i) {
            a.getName(i, &uri, &uriLength, &local, &localLength, &qName, &qNameLength);
            a.getType(i, &type, &typeLength);
            names.push_back(std::wstring(uri, uriLength) + L"|" + std::wstring(local, localLength) +
                            L"|" + std::wstring(qName, qNameLength) + L"|" +
                            std::wstring(type, typeLength));
        }
        a.getIndexFromName(L"urn:p", 5, L"a", 1, &index);
        names.push_back(std::to_wstring(index));
        a.getValueFromQName(L"xmlns", 5, &uri, &uriLength);
        names.push_back(std::wstring(uri, uriLength));
        const long unknown[] = {
            a.getIndexFromQName(L"a", 1, &index), a.getIndexFromName(L"", 0, L"a", 1, &index),
            a.getValue(count, &uri, &uriLength), a.getQName(-1, &uri, &uriLength),
            a.getTypeFromQName(L"q", 1, &uri, &uriLength)};
        for (long result : unknown) EXPECT_EQ(result, E_INVALIDARG);
    };
    ASSERT_EQ(parse(L"<p:e z=\"1\" xmlns:p=\"urn:p\" p:a=\"2\" xmlns=\"urn:d\" b=\"3\"><f/></p:e>"),
              S_OK);
    EXPECT_EQ(names, (Events{L"|p|xmlns:p|CDATA", L"|xmlns|xmlns|CDATA", L"|z|z|CDATA",
                             L"urn:p|a|p:a|CDATA", L"|b|b|CDATA", L"3", L"urn:d"}));
    EXPECT_EQ(content.all(), (Events{L"startDocument", L"map p=urn:p", L"map =urn:d",
                                     L"start p:e {urn:p}e xmlns:p=urn:p xmlns=urn:d z=1 p:a=2 b=3",
                                     L"start f {urn:d}f", L"end f", L"end p:e", L"unmap p",
                                     L"unmap ", L"endDocument"}));
}

TEST_F(SAXReaderTest, DeclaredEncodingIsIgnored) {
    const std::wstring body = L"<a v=\"\u00e9\u20ac\">\u00fc\u4e2d\U0001F600</a>";
    for (const wchar_t* declared : {L"ISO-8859-1", L"UTF-16", L"windows-1252", L"x-unknown"}) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(declared)));
        content.events.clear();
        const std::wstring text =
            std::wstring(L"\uFEFF<?xml version=\"1.0\" encoding=\"") + declared + L"\"?>" + body;
        ASSERT_EQ(parse(text), S_OK) << reader.getErrorDescription();
        EXPECT_EQ(content.all()[1], L"start a {}a v=\u00e9\u20ac");
        EXPECT_EQ(content.all()[2], L"text \u00fc\u4e2d\U0001F600");
    }
}

TEST_F(SAXReaderTest, DocumentTypeDeclarationsAreRefused) {
    const wchar_t* cases[] = {
        L"<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ENTITY x \"y\">]><a>&x;</a>",
        L"<?xml version=\"1.0\"?>\n<!DOCTYPE a SYSTEM \"file:///etc/passwd\"><a/>",
        L"<!-- -->\n<!DOCTYPE a [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;\">]>\n<a>&b;</a>",
    };
    for (const wchar_t* text : cases) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(text)));
        content.events.clear();
        errors.reports.clear();
        EXPECT_EQ(parse(text), XML_E_DTD_PROHIBITED);
        ASSERT_EQ(errors.reports.size(), 1u);
        const ErrorReport& report = errors.reports[0];
        EXPECT_EQ(report.kind, L"fatal");
        EXPECT_EQ(report.code, XML_E_DTD_PROHIBITED);
        EXPECT_EQ(report.message, L"document type declarations are not allowed");
        EXPECT_EQ(report.line, 2);
        EXPECT_GT(report.column, 0);
        EXPECT_EQ(reader.getErrorDescription(),
                  L"line 2, column " + std::to_wstring(report.column) +
                      L": document type declarations are not allowed");
        EXPECT_EQ(content.all(), Events{L"startDocument"});
    }
}

TEST_F(SAXReaderTest, NestingIsLimitedTo256Levels) {
    struct Case {
        int levels;
        long result;
    };
    for (const Case& c :
         {Case{256, S_OK}, Case{257, XML_E_TOO_DEEP}, Case{10000, XML_E_TOO_DEEP}}) {
        SCOPED_TRACE(c.levels);
        errors.reports.clear();
        content.events.clear();
        EXPECT_EQ(parse(nested(c.levels)), c.result);
        if (c.result == S_OK) {
            EXPECT_TRUE(errors.reports.empty());
            EXPECT_EQ(content.all().back(), L"endDocument");
            continue;
        }
        ASSERT_EQ(errors.reports.size(), 1u);
        EXPECT_EQ(errors.reports[0].code, XML_E_TOO_DEEP);
        EXPECT_EQ(errors.reports[0].message, L"elements nested deeper than 256 levels");
        EXPECT_EQ(errors.reports[0].column, 257 * 3);
        EXPECT_EQ(content.all().size(), 257u);  // startDocument and 256 starts
    }
}

TEST_F(SAXReaderTest, MalformedTextEndsWithOneFatalError) {
    struct Case {
        const wchar_t* text;
        int line;
    };
    const Case cases[] = {
        {L"<a>\n<b>\n</c></a>", 3},
        {L"<a>", 1},
        {L"", 1},
        {L"  \n ", 1},
        {L"<a x='1' x='2'/>", 1},
        {L"<a>&undefined;</a>", 1},
        {L"text", 1},
        {L"<a/>\n<b/>", 2},
        {L"<a>\u0001</a>", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(c.text)));
        content.events.clear();
        errors.reports.clear();
        ::testing::internal::CaptureStderr();
        const long result = parse(c.text);
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
        EXPECT_TRUE(parseCode(result)) << std::hex << result;
        ASSERT_EQ(errors.reports.size(), 1u);
        const ErrorReport& report = errors.reports[0];
        EXPECT_EQ(report.kind, L"fatal");
        EXPECT_EQ(report.code, result);
        EXPECT_EQ(report.line, c.line);
        EXPECT_GT(report.column, 0);
        EXPECT_FALSE(report.message.empty());
        EXPECT_NE(report.message.back(), L'\n');
        EXPECT_EQ(reader.getErrorDescription(), L"line " + std::to_wstring(report.line) +
                                                    L", column " + std::to_wstring(report.column) +
                                                    L": " + report.message);
        for (const std::wstring& event : content.all()) EXPECT_NE(event, L"endDocument");
    }
}

TEST_F(SAXReaderTest, StartTagsAreLocatedAtTheirLessThanSign) {
    std::vector<std::pair<int, int>> starts;
    content.react = [&](const std::wstring& event) {
        auto& locator = dynamic_cast<IStartTagLocator&>(*content.locator);
        int line = 0, column = 0;
        const long result = locator.getStartTagPosition(&line, &column);
        if (!event.starts_with(L"start ")) return result == E_UNEXPECTED ? S_OK : E_FAIL;
        starts.emplace_back(line, column);
        return result;
    };
    // Line breaks of every kind, one inside a tag, characters of several
    // bytes, a tag beyond the first chunk given to libxml2.
    const std::wstring text = L"<a>\r\n  <b k=\"1\"\n m=\"2\"/>\u00e9\u4e2d<c/>\r<d/>" +
                              std::wstring(70000, L'x') + L"<e/></a>";
    ASSERT_EQ(parse(text), S_OK) << reader.getErrorDescription();
    EXPECT_EQ(starts,
              (std::vector<std::pair<int, int>>{{1, 1}, {2, 3}, {3, 11}, {4, 1}, {4, 70005}}));
}

TEST_F(SAXReaderTest, WarningsAccumulateAndTheParseGoesOn) {
    EXPECT_EQ(parse(L"<a xmlns=\"relative\">\n<b xmlns=\"other\"/></a>"), S_OK);
    ASSERT_EQ(errors.reports.size(), 2u);
    EXPECT_EQ(errors.reports[0].kind, L"warning");
    EXPECT_EQ(errors.reports[1].kind, L"warning");
    EXPECT_EQ(errors.reports[1].line, 2);
    EXPECT_EQ(content.all().back(), L"endDocument");
    EXPECT_EQ(reader.getErrorDescription(), L"");
}

// A namespace-aware reader of XML 1.0 refuses what libxml2 lets pass.
TEST_F(SAXReaderTest, NamespaceErrorsAndOtherVersionsAreFatal) {
    const wchar_t* const texts[] = {
        L"<a><x:b/></a>",
        L"<a xmlns:xml=\"urn:other\"/>",
        L"<a xmlns:p=\"\"/>",
        L"<a xmlns:p=\"urn:p\" p:k=\"1\" xmlns:q=\"urn:p\" q:k=\"2\"/>",
        L"<?xml version=\"1.1\"?><a/>",
        // libxml2 goes on reading the declarations into a document of its own
        L"<?xml version=\"1.1\"?><!DOCTYPE a [<!ENTITY e \"x\">]><a>&e;</a>",
    };
    for (const wchar_t* text : texts) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(text)));
        errors.reports.clear();
        EXPECT_TRUE(parseCode(parse(text)));
        ASSERT_EQ(errors.reports.size(), 1u);
        EXPECT_EQ(errors.reports[0].kind, L"fatal");
        for (const std::wstring& event : content.all()) EXPECT_NE(event, L"endDocument");
    }
}

TEST_F(SAXReaderTest, AFailingHandlerStopsTheParse) {
    const std::wstring text = L"<?p d?><a>t<b/></a>";
    const Events full = {L"startDocument", L"pi p d", L"start a {}a", L"text",
                         L"start b {}b",   L"end b",  L"end a",       L"endDocument"};
    const long failure = static_cast<int>(0x80040001u);
    for (std::size_t failAt = 0; failAt < full.size(); ++failAt) {
        SCOPED_TRACE(full[failAt]);
        Events seen;
        content.react = [&](const std::wstring& event) {
            seen.push_back(event);
            return event == full[failAt] ? failure : S_OK;
        };
        EXPECT_EQ(parse(text), failure);
        EXPECT_EQ(seen, Events(full.begin(), full.begin() + failAt + 1));
        EXPECT_NE(reader.getErrorDescription().find(L"0x80040001"), std::wstring::npos);
    }
    content.react = [](const std::wstring&) { return S_OK; };
    errors.answer = failure;  // a failing error handler stops it too
    EXPECT_EQ(parse(L"<a xmlns=\"relative\"><b xmlns=\"other\"/></a>"), failure);
    EXPECT_EQ(errors.reports.size(), 1u);
}

TEST_F(SAXReaderTest, HandlerExceptionsLeaveParse) {
    using kazexception::IKAZException;
    for (const wchar_t* at : {L"startDocument", L"start b {}b", L"text", L"endDocument"}) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(at)));
        content.react = [&](const std::wstring& event) -> long {
            if (event == at)
                throw kazexception::KAZExceptionFactory::createParsingException(L"stop", L"here",
                                                                                nullptr);
            return S_OK;
        };
        try {
            parse(L"<a>x<b/></a>");
            ADD_FAILURE() << "no exception";
        } catch (IKAZException* e) {
            kazexception::ExceptionGuard guard(e);
            EXPECT_EQ(e->getMessage(), L"stop");
        }
    }
    content.react = [](const std::wstring&) { return S_OK; };
    errors.onFatal = [] { throw std::bad_alloc(); };
    EXPECT_THROW(parse(L"<a>"), std::bad_alloc);
    errors.onFatal = [] {};
    EXPECT_EQ(parse(L"<a/>"), S_OK);  // the reader is still usable
}

TEST_F(SAXReaderTest, LargeTextsParse) {
    std::wstring text = L"<r>";
    const std::wstring item = L"<i n=\"\u00e9\">\u00e9\u20ac\U0001F600 text &amp; more</i>";
    while (text.size() < 1'000'000) text += item;
    const std::wstring longText(200'000, L'\u00e9');
    text += L"<t>" + longText + L"</t></r>";
    const std::size_t items = (text.size() - longText.size()) / item.size();
    EXPECT_EQ(parse(text), S_OK) << reader.getErrorDescription();
    const Events& events = content.all();
    EXPECT_EQ(events.size(), 3 * items + 7);
    EXPECT_EQ(events[events.size() - 4], L"text " + longText);
    EXPECT_GT(content.textPieces, static_cast<int>(items) + 1);  // the long text came in pieces
}

TEST_F(SAXReaderTest, WorksWithoutHandlers) {
    SAXXMLReader bare;
    EXPECT_EQ(bare.parse(L"<a><b/>t</a>"), S_OK);
    EXPECT_EQ(bare.parse(nested(300)), XML_E_TOO_DEEP);
    EXPECT_NE(bare.getErrorDescription(), L"");
    EXPECT_TRUE(parseCode(bare.parse(L"<a>")));
}

}  // namespace
