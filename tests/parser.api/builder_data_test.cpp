// The builder's data mode: typed values, tables, references and language
// strings as the factory forms give them, and what they write back.

#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;

NodePtr<IUseRefDataCfg> readReference(IElement::ElementType type, const std::wstring& text) {
    return NodePtr<IUseRefDataCfg>(KAZConfigFactory::createUseRefDataCfg(type, &text, nullptr));
}

NodePtr<> build(const std::wstring& text) {
    return NodePtr<>(KAZConfigFactory::createNodeCfg(&text, nullptr));
}

// The only child of a holder element built from `content`.
template <class I>
I* onlyChild(const NodePtr<>& holder) {
    EXPECT_TRUE(holder != nullptr && holder->getChildCount() == 1);
    if (holder == nullptr || holder->getChildCount() != 1) return nullptr;
    return dynamic_cast<I*>(holder->getChild(0));
}

using BuilderDataTest = LeakCheckedTest;

// A reference read alone holds the markup of its first child whatever the
// type; read by the builder, its whole content. Either way what it writes
// reads back to the same reference.
TEST_F(BuilderDataTest, ReferencesHoldTheirContentAsMarkup) {
    const struct {
        const wchar_t* text;
        const wchar_t* alone;
        const wchar_t* built;
    } cases[] = {
        {L"<UseXValue>Lane.Width</UseXValue>", L"Lane.Width", L"Lane.Width"},
        {L"<UseData>R&amp;D&#13;<![CDATA[<x>]]>!<b/></UseData>", L"R&amp;D&#13;&lt;x&gt;!",
         L"R&amp;D&#13;&lt;x&gt;!<b></b>"},
        {L"<UseData><!--c--><Ref k=\"&quot;a&#9;b&quot;\">x<i/></Ref>tail</UseData>",
         L"<Ref k=\"&quot;a&#9;b&quot;\">x<i></i></Ref>",
         L"<Ref k=\"&quot;a&#9;b&quot;\">x<i></i></Ref>tail"},
        {L"<UseData/>", L"", nullptr},
        {L"<UseData>x", L"", nullptr},  // malformed: the empty reference
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        for (auto type : {IElement::Boolean, IElement::Table, IElement::NoValue}) {
            auto node = readReference(type, c.text);
            EXPECT_EQ(node->getReference(), c.alone);
            EXPECT_EQ(node->getDataType(), IElement::NoValue);
            EXPECT_EQ(readReference(type, node->toXml())->getReference(), c.alone);
        }
        if (c.built == nullptr) continue;
        auto holder = build(L"<Holder>" + std::wstring(c.text) + L"</Holder>");
        auto* node = onlyChild<IUseRefDataCfg>(holder);
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->getReference(), c.built);
        EXPECT_EQ(onlyChild<IUseRefDataCfg>(build(holder->toXml()))->getReference(), c.built);
    }
}

// A table with every datatype of property and column, and texts that need
// escaping.
const std::wstring kTable =
    L"<Table name=\"Roads\" desc=\"a &quot;main&quot; &lt;table&gt;\"><Properties>"
    L"<Property name=\"unit\" datatype=\"string\"> m &amp; km </Property><Property "
    L"name=\"count\" datatype=\"integer\">-3</Property><Property name=\"scale\" "
    L"datatype=\"double\">0.1</Property><Property name=\"open\" datatype=\"boolean\">true"
    L"</Property></Properties><Column name=\"Width\" desc=\"metres\" datatype=\"double\">"
    L"<Row>7.5</Row><Row>nan</Row><Row>-inf</Row></Column><Column name=\"Lanes\" "
    L"datatype=\"integer\"><Row>2</Row><Row>-1</Row><Row>2147483647</Row></Column><Column "
    L"name=\"Label\" datatype=\"string\"><Row></Row><Row>&lt;b&gt;R&amp;D&lt;/b&gt;</Row>"
    L"<Row>  two  </Row></Column><Column datatype=\"boolean\"><Row>true</Row><Row>false</Row>"
    L"<Row>true</Row></Column></Table>";

TEST_F(BuilderDataTest, TypedElementsGiveTheValuesThatCreateUseDataCfgGives) {
    const std::wstring tables =
        L"<Tables name=\"Net\" desc=\"all\">" + kTable + L"<Table></Table></Tables>";
    struct Case {
        const wchar_t* element;
        IElement::ElementType type;
        std::wstring content;
        std::wstring written;
    };
    const Case cases[] = {
        {L"UseBoolean", IElement::Boolean, L"true", L"true"},
        {L"UseBoolean", IElement::Boolean, L"True", L"false"},
        {L"UseBoolean", IElement::Boolean, L" true", L"false"},
        {L"UseDouble", IElement::Double, L" -7.5e1xyz", L"-75"},
        {L"UseDouble", IElement::Double, L"letters", L"0"},
        {L"UseDouble", IElement::Double, L"1<x>2</x>.5", L"12.5"},
        {L"UseInteger", IElement::Integer, L" -7 apples", L"-7"},
        {L"UseInteger", IElement::Integer, L"12.9", L"12"},
        {L"UseString", IElement::String, L"a&amp;b<![CDATA[<c>]]>&#65;&lt;",
         L"a&amp;b&lt;c&gt;A&lt;"},
        {L"UseString", IElement::String, L"a<![CDATA[<b>]]>c<d/>e", L"a&lt;b&gt;c"},
        {L"UseString", IElement::String, L"<!--c--><b k=\"1\">x</b>tail",
         L"&lt;b k=\"1\"&gt;x&lt;/b&gt;"},
        {L"UseDouble", IElement::Double, L"0.3333333333333333", L"0.3333333333333333"},
        {L"UseString", IElement::String, L" x &lt;y&gt; \"z\" ", L" x &lt;y&gt; \"z\" "},
        {L"UseTable", IElement::Table, kTable, kTable},
        {L"UseTables", IElement::Tables, tables, tables},
        {L"UseTables", IElement::TablesCollection, L"<Tables><Tables name=\"A\"></Tables></Tables>",
         L"<Tables><Tables name=\"A\"></Tables></Tables>"},
    };
    for (const Case& c : cases) {
        const std::wstring element =
            L"<" + std::wstring(c.element) + L">" + c.content + L"</" + c.element + L">";
        SCOPED_TRACE(testing::PrintToString(element));
        auto holder = build(L"<Holder>" + element + L"</Holder>");
        auto* node = onlyChild<IUseDataCfg>(holder);
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->getParent(), holder.get());
        EXPECT_EQ(node->getDataType(), c.type);
        EXPECT_EQ(node->toXml(),
                  L"<" + std::wstring(c.element) + L">" + c.written + L"</" + c.element + L">");
        NodePtr<IUseDataCfg> direct(KAZConfigFactory::createUseDataCfg(c.type, &element, nullptr));
        ASSERT_NE(direct->getValue(), nullptr);
        EXPECT_TRUE(node->getValue()->equals(*direct->getValue()));
    }
}

TEST_F(BuilderDataTest, LanguageStringsJoinTheirTextPieces) {
    // A nested element makes a node the string refuses; the text around it
    // is the string's.
    auto holder = build(
        L"<Holder><UseLanguageString>IDS_&amp;<![CDATA[<1>]]><x>y</x>2</UseLanguageString></"
        L"Holder>");
    auto* text = onlyChild<ILanguageStringCfg>(holder);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->getStringID(), L"IDS_&<1>2");
    EXPECT_EQ(text->getDataType(), IElement::String);
    EXPECT_EQ(text->toXml(), L"<UseLanguageString>IDS_&amp;&lt;1&gt;2</UseLanguageString>");
}

}  // namespace
