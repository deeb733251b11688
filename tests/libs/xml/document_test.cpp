#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "kazxml/Document.h"
#include "kazxml/PlatformError.h"
#include "kazxml/Result.h"
#include "recorder.h"

using namespace kaz::xml;
using Names = std::vector<std::wstring>;
using Attributes = std::vector<std::pair<std::wstring, std::wstring>>;

namespace {

IXMLDOMDocument2Ptr loaded(const std::wstring& text) {
    IXMLDOMDocument2Ptr document = Document::create();
    EXPECT_TRUE(document->loadXML(text)) << ::testing::PrintToString(document->parseError().reason);
    return document;
}

Names namesOf(const std::vector<IXMLDOMNodePtr>& nodes) {
    Names names;
    for (const IXMLDOMNodePtr& node : nodes) names.push_back(node->nodeName());
    return names;
}

const std::wstring kSample =
    L"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
    L"<r xmlns:p=\"urn:p\" id=\"1\" p:q=\"a &amp; &lt;\u00e9&gt;\">"
    L"<a>x &amp; y<![CDATA[<z>]]><!--c--><?pi data?><b>\u20ac</b></a><p:c/></r>";

TEST(DocumentTest, LoadsANavigableTree) {
    IXMLDOMDocument2Ptr document = loaded(kSample);
    EXPECT_EQ(document->parseError().code, S_OK);
    IXMLDOMNodePtr root = document->documentElement();
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->type(), Node::Type::Element);
    EXPECT_EQ(root->attributes(),
              (Attributes{{L"xmlns:p", L"urn:p"}, {L"id", L"1"}, {L"p:q", L"a & <\u00e9>"}}));
    EXPECT_EQ(root->attribute(L"p:q"), L"a & <\u00e9>");
    EXPECT_EQ(root->attribute(L"q"), std::nullopt);
    IXMLDOMNodePtr attribute = document->selectSingleNode(L"//@*[name() = 'p:q'] | //@id");
    EXPECT_EQ(attribute->type(), Node::Type::Other);
    EXPECT_EQ(attribute->nodeName(), L"id");
    EXPECT_EQ(attribute->nextSibling()->text(), L"a & <\u00e9>");
    EXPECT_EQ(namesOf(root->childNodes()), (Names{L"a", L"p:c"}));
    IXMLDOMNodePtr a = root->firstChild();
    EXPECT_EQ(namesOf(a->childNodes()),
              (Names{L"#text", L"#cdata-section", L"#comment", L"pi", L"b"}));
    std::vector<Node::Type> types;
    for (const IXMLDOMNodePtr& child : a->childNodes()) types.push_back(child->type());
    EXPECT_EQ(types,
              (std::vector<Node::Type>{Node::Type::Text, Node::Type::CData, Node::Type::Comment,
                                       Node::Type::ProcessingInstruction, Node::Type::Element}));
    EXPECT_EQ(a->text(), L"x & y<z>\u20ac");
    EXPECT_EQ(a->nextSibling()->nodeName(), L"p:c");
    EXPECT_EQ(a->nextSibling()->nextSibling(), nullptr);
    EXPECT_EQ(a->parentNode()->nodeName(), L"r");
    EXPECT_EQ(root->parentNode()->type(), Node::Type::Other);
}

TEST(DocumentTest, FailedLoadsLeaveTheDocumentEmpty) {
    struct Case {
        std::wstring text;
        long code;  // 0: any parse error
        int line;
        const wchar_t* reason;  // null: any
    };
    const Case cases[] = {
        {L"", 0, 1, nullptr},
        {L"<a>\n<b></a>", 0, 2, nullptr},
        {L"<a>&undefined;</a>", 0, 1, nullptr},
        {L"<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ENTITY x \"y\">]><a>&x;</a>",
         XML_E_DTD_PROHIBITED, 2, L"document type declarations are not allowed"},
        {test::nested(257), XML_E_TOO_DEEP, 1, L"elements nested deeper than 256 levels"},
        {test::nested(10000), XML_E_TOO_DEEP, 1, L"elements nested deeper than 256 levels"},
    };
    IXMLDOMDocument2Ptr document = Document::create();
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.text.substr(0, 40)));
        ASSERT_TRUE(document->loadXML(L"<previous/>"));
        ::testing::internal::CaptureStderr();
        EXPECT_FALSE(document->loadXML(c.text));
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(document->documentElement(), nullptr);
        EXPECT_EQ(document->xml(), L"");
        EXPECT_TRUE(document->selectNodes(L"//*").empty());
        const ParseErrorInfo& error = document->parseError();
        if (c.code != 0)
            EXPECT_EQ(error.code, c.code);
        else
            EXPECT_EQ(error.code & ~0xFFFL, XML_E_PARSE_BASE);
        EXPECT_EQ(error.line, c.line);
        EXPECT_GT(error.column, 0);
        if (c.reason != nullptr) {
            EXPECT_EQ(error.reason, c.reason);
        }
        EXPECT_FALSE(error.reason.empty());
    }
    EXPECT_TRUE(document->loadXML(test::nested(256)));
    EXPECT_EQ(document->parseError().code, S_OK);
    EXPECT_EQ(document->parseError().reason, L"");
}

TEST(DocumentTest, XPathSelectsNodesInDocumentOrder) {
    IXMLDOMDocument2Ptr document = loaded(L"<r><a><b/><c>t</c></a><d><e/></d><a><f/></a></r>");
    EXPECT_EQ(namesOf(document->selectNodes(L"//*/*")),
              (Names{L"a", L"b", L"c", L"d", L"e", L"a", L"f"}));
    EXPECT_EQ(namesOf(document->selectNodes(L"//f | //b | //d")), (Names{L"b", L"d", L"f"}));
    EXPECT_EQ(document->selectSingleNode(L"//a[2]/*")->nodeName(), L"f");
    EXPECT_EQ(document->selectSingleNode(L"/r/x"), nullptr);
    EXPECT_TRUE(document->selectNodes(L"count(//*)").empty());
    EXPECT_EQ(document->selectSingleNode(L"/")->nodeName(), L"#document");
    IXMLDOMNodePtr a = document->selectSingleNode(L"/r/a");
    EXPECT_EQ(namesOf(a->selectNodes(L"*")), (Names{L"b", L"c"}));
    EXPECT_EQ(a->selectSingleNode(L"c/text()")->text(), L"t");
    EXPECT_EQ(namesOf(a->selectNodes(L"following-sibling::*")), (Names{L"d", L"a"}));
    const wchar_t* invalid[] = {L"//*[",  L"",     L"unknown(1)", L"$undefined",
                                L"p:f()", L"$p:v", L"xml:f ()",   L"//p:a"};
    for (const wchar_t* expression : invalid) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(expression)));
        ::testing::internal::CaptureStderr();
        try {
            document->selectNodes(expression);
            ADD_FAILURE() << "no exception";
        } catch (const PlatformError& error) {
            EXPECT_TRUE(failed(error.code()));
            EXPECT_EQ(error.message().find(L"invalid XPath expression \"" +
                                           std::wstring(expression) + L"\": "),
                      0u);
        }
        EXPECT_THROW(a->selectSingleNode(expression), PlatformError);
        EXPECT_THROW(Document::create()->selectNodes(expression), PlatformError);
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    }
    EXPECT_EQ(document->selectSingleNode(L"//c[not(contains(., 'p:f('))]")->nodeName(), L"c");
}

TEST(DocumentTest, XmlGivesEscapedMarkupThatLoadsBack) {
    IXMLDOMDocument2Ptr document = loaded(kSample);
    const std::wstring expected =
        L"<r xmlns:p=\"urn:p\" id=\"1\" p:q=\"a &amp; &lt;\u00e9&gt;\"><a>x &amp; y<![CDATA[<z>]]>"
        L"<!--c--><?pi data?><b>\u20ac</b></a><p:c/></r>";
    EXPECT_EQ(document->documentElement()->xml(), expected);
    EXPECT_EQ(document->selectSingleNode(L"//b/text()")->xml(), L"\u20ac");
    const std::wstring whole = document->xml();
    EXPECT_EQ(whole.find(L"<?xml"), std::wstring::npos);
    EXPECT_EQ(loaded(whole)->documentElement()->xml(), expected);

    // Namespace names are escaped too, and an element declares what it uses.
    document = loaded(L"<r xmlns:p=\"a&amp;b&lt;&quot;\"><p:c/></r>");
    EXPECT_EQ(document->selectSingleNode(L"/r/*")->xml(), L"<p:c xmlns:p=\"a&amp;b&lt;&quot;\"/>");
    EXPECT_EQ(loaded(document->xml())->documentElement()->xml(),
              document->documentElement()->xml());
}

TEST(DocumentTest, NodesOutliveTheirDocument) {
    IXMLDOMDocument2Ptr document = loaded(L"<r xmlns=\"urn:d\"><a k=\"v\"><b>t</b></a></r>");
    IXMLDOMNodePtr a = document->selectSingleNode(L"//*[local-name()='a']");
    IXMLDOMNodePtr deep = a->cloneNode(true);
    IXMLDOMNodePtr shallow = a->cloneNode(false);
    EXPECT_TRUE(document->loadXML(L"<other/>"));
    document.reset();
    EXPECT_EQ(a->parentNode()->nodeName(), L"r");
    EXPECT_EQ(deep->parentNode(), nullptr);
    EXPECT_EQ(deep->xml(), L"<a xmlns=\"urn:d\" k=\"v\"><b>t</b></a>");
    EXPECT_EQ(shallow->xml(), L"<a xmlns=\"urn:d\" k=\"v\"/>");
    IXMLDOMNodePtr child = deep->firstChild();
    deep.reset();
    a.reset();
    EXPECT_EQ(child->text(), L"t");
    EXPECT_EQ(child->parentNode()->cloneNode(true)->attribute(L"k"), L"v");
}

}  // namespace
