// The tree builder's data mode: typed values, table objects, references and
// language strings read from configuration text, and what they write back.

#include <cmath>

#include "tableobj/TableobjFactory.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::ILanguageStringCfg;
using kaz::kazparser::IUseDataCfg;
using kaz::kazparser::IUseRefDataCfg;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;
using tableobj::TableobjFactory;

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

const wchar_t* const kTable =
    L"<Table name=\"Roads\" desc=\"a &quot;b&quot;\"><Properties><Property name=\"unit\" "
    L"datatype=\"string\">m &amp; km</Property></Properties><Column name=\"W\" "
    L"datatype=\"double\"><Row>7.5</Row><Row>5</Row></Column><Column name=\"N\" "
    L"datatype=\"string\"><Row>&lt;a&gt;</Row><Row></Row></Column></Table>";

// A table with every datatype of property and column, and texts that need escaping.
tableobj::ITable* fullTable(const std::wstring& name) {
    tableobj::ITable* table = TableobjFactory::createTable(name, L"a \"main\" <table>");
    table->setProperty(L"unit", TableobjFactory::createString(L" m & km "));
    table->setProperty(L"count", TableobjFactory::createInt(-3));
    table->setProperty(L"scale", TableobjFactory::createDouble(0.1));
    table->setProperty(L"open", TableobjFactory::createBool(true));
    auto* width = TableobjFactory::createColumnDouble(L"Width");
    width->setDesc(L"metres");
    for (double v : {7.5, std::nan(""), -HUGE_VAL}) width->appendValue(v);
    auto* lanes = TableobjFactory::createColumnInt(L"Lanes");
    for (int v : {2, -1, 2147483647}) lanes->appendValue(v);
    auto* label = TableobjFactory::createColumnString(L"Label");
    for (const wchar_t* v : {L"", L"<b>R&D</b>", L"  two  "}) label->appendValue(v);
    auto* oneWay = TableobjFactory::createColumnBool();
    for (bool v : {true, false, true}) oneWay->appendValue(v);
    for (tableobj::IColumn* column :
         {static_cast<tableobj::IColumn*>(width), static_cast<tableobj::IColumn*>(lanes),
          static_cast<tableobj::IColumn*>(label), static_cast<tableobj::IColumn*>(oneWay)})
        table->getColumns().append(column);
    return table;
}

class BuilderDataTest : public LeakCheckedTest {};

TEST_F(BuilderDataTest, TypedElementsGiveTheValuesThatCreateUseDataCfgGives) {
    struct Case {
        const wchar_t* element;
        IElement::ElementType type;
        const wchar_t* content;
        const wchar_t* written;
    };
    const Case cases[] = {
        {L"UseBoolean", IElement::Boolean, L"true", L"true"},
        {L"UseBoolean", IElement::Boolean, L"True", L"false"},
        {L"UseBoolean", IElement::Boolean, L"1", L"false"},
        {L"UseBoolean", IElement::Boolean, L" true", L"false"},
        {L"UseDouble", IElement::Double, L" -7.5e1xyz", L"-75"},
        {L"UseDouble", IElement::Double, L"letters", L"0"},
        {L"UseDouble", IElement::Double, L"1<x>2</x>.5", L"12.5"},
        {L"UseInteger", IElement::Integer, L" -7 apples", L"-7"},
        {L"UseInteger", IElement::Integer, L"12.9", L"12"},
        {L"UseInteger", IElement::Integer, L"x1", L"0"},
        {L"UseString", IElement::String, L"a&amp;b<![CDATA[<c>]]>&#65;&lt;",
         L"a&amp;b&lt;c&gt;A&lt;"},
        {L"UseString", IElement::String, L"a<![CDATA[<b>]]>c<d/>e", L"a&lt;b&gt;c"},
        {L"UseString", IElement::String, L"<!--c--><b k=\"1\">x</b>tail",
         L"&lt;b k=\"1\"&gt;x&lt;/b&gt;"},
        {L"UseString", IElement::String, L"", L""},
        {L"UseTable", IElement::Table, kTable, kTable},
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

TEST_F(BuilderDataTest, WrittenValuesReadBackEqualOnBothPaths) {
    std::vector<std::unique_ptr<IElement>> values;
    values.emplace_back(TableobjFactory::createDouble(1.0 / 3));
    values.emplace_back(TableobjFactory::createString(L" x <y> \"z\" "));
    values.emplace_back(fullTable(L""));
    auto* columns = TableobjFactory::createColumns();
    std::unique_ptr<tableobj::ITable> source(fullTable(L"T"));
    columns->append(source->getColumns().remove(1));
    values.emplace_back(columns);
    auto* tables = TableobjFactory::createTables(L"Net", L"all");
    tables->append(fullTable(L"Roads"));
    tables->append(TableobjFactory::createTable());
    values.emplace_back(tables);
    auto* collection = TableobjFactory::createTablesCollection();
    collection->append(TableobjFactory::createTables(L"A"));
    values.emplace_back(collection);

    for (const auto& value : values) {
        NodePtr<IUseDataCfg> node(
            KAZConfigFactory::createUseDataCfg(IElement::NoValue, nullptr, nullptr));
        node->setValue(value->clone());
        if (value->getElementType() == IElement::TablesCollection)
            node->setElementName(L"UseTables");
        const std::wstring written = node->toXml();
        SCOPED_TRACE(testing::PrintToString(written));
        NodePtr<IUseDataCfg> direct(
            KAZConfigFactory::createUseDataCfg(value->getElementType(), &written, nullptr));
        ASSERT_NE(direct->getValue(), nullptr);
        EXPECT_TRUE(direct->getValue()->equals(*value));
        if (node->getName() == L"UseData") continue;  // Columns: no element of the builder's
        auto holder = build(L"<Holder>\n  " + written + L"\n</Holder>");
        auto* read = onlyChild<IUseDataCfg>(holder);
        ASSERT_NE(read, nullptr);
        ASSERT_NE(read->getValue(), nullptr);
        EXPECT_TRUE(read->getValue()->equals(*value));
        EXPECT_EQ(read->toXml(), written);
    }
}

TEST_F(BuilderDataTest, ContentUsingAPrefixDeclaredOutsideItReadsAsItStands) {
    auto holder = build(L"<Holder xmlns:p=\"u\"><UseString><p:b k=\"1\"/></UseString></Holder>");
    auto* node = onlyChild<IUseDataCfg>(holder);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->toXml(), L"<UseString>&lt;p:b k=\"1\"&gt;&lt;/p:b&gt;</UseString>");
}

TEST_F(BuilderDataTest, ValuesThatCannotBeReadEndInTheThreeLevelChain) {
    struct Case {
        const wchar_t* text;
        const wchar_t* reason;
    };
    const Case cases[] = {
        {L"<Holder><UseColumn><Column name=\"W\" datatype=\"float\"><Row>1</Row></Column>"
         L"</UseColumn></Holder>",
         L"\nexception occorred at <UseColumn>\n<Column name=\"W\">: unknown datatype \"float\""},
        {L"<UseTables><Tables><Table><Column datatype=\"integer\"><Row>x</Row></Column></Table>"
         L"</Tables></UseTables>",
         L"\nexception occorred at <UseTables>\n<Column>: \"x\" is not a value of datatype "
         L"\"integer\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        const auto chain = thrownChain([&] { build(c.text); });
        ASSERT_EQ(chain.size(), 3u);
        EXPECT_EQ(chain[0].message, L"Configure invalid at 'createNodeCfg'");
        EXPECT_EQ(chain[2].message, L"Syntax error at :'" + std::wstring(c.reason) + L"'");
    }
}

TEST_F(BuilderDataTest, TableElementsCreateNothingOutsideAValueOnly) {
    const auto chain =
        thrownChain([] { build(L"<Holder><Column datatype=\"integer\"/></Holder>"); });
    ASSERT_EQ(chain.size(), 3u);
    EXPECT_EQ(chain[2].message, L"Syntax error at :'\nCan not create <Column>\n'");
    auto holder = build(L"<Holder><UseColumn><Column datatype=\"integer\"/></UseColumn></Holder>");
    ASSERT_NE(holder, nullptr);
    EXPECT_EQ(holder->toXml(),
              L"<Holder><UseColumn><Column datatype=\"integer\"></Column></UseColumn></Holder>");
}

TEST_F(BuilderDataTest, ReferencesKeepTheirWholeContentAsMarkup) {
    struct Case {
        const wchar_t* text;
        const wchar_t* reference;
    };
    const Case cases[] = {
        {L"<UseXValue>Lane.Width</UseXValue>", L"Lane.Width"},
        {L"<UseData>R&amp;D<![CDATA[<x>]]>&#65;</UseData>", L"R&amp;D&lt;x&gt;A"},
        {L"<UseData>a<Ref k=\"&quot;1&quot;\">b<UseDouble>2</UseDouble></Ref>c<e/></UseData>",
         L"a<Ref k=\"&quot;1&quot;\">b<UseDouble>2</UseDouble></Ref>c<e></e>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        auto holder = build(L"<Holder>" + std::wstring(c.text) + L"</Holder>");
        auto* node = onlyChild<IUseRefDataCfg>(holder);
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->getReference(), c.reference);
        auto again = build(holder->toXml());
        const auto* reread = onlyChild<IUseRefDataCfg>(again);
        ASSERT_NE(reread, nullptr);
        EXPECT_EQ(reread->getReference(), c.reference);
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
    EXPECT_EQ(text->toXml(), L"<UseLanguageString>IDS_&amp;&lt;1&gt;2</UseLanguageString>");
}

TEST_F(BuilderDataTest, FailedAllocationsWhileReadingValuesFreeEverything) {
    const std::wstring texts[] = {
        L"<Holder><UseTables><Tables><Table><Properties><Property name=\"p\" datatype=\"integer\">1"
        L"</Property></Properties><Column "
        L"datatype=\"string\"><Row>a</Row></Column></Table></Tables>"
        L"</UseTables><UseData>x<y/></UseData><UseDouble>1</UseDouble></Holder>",
        L"<Holder><UseTable><Table><Column datatype=\"bad\"/></Table></UseTable></Holder>"};
    for (const std::wstring& text : texts) {
        expectNothingLeaksUnderAllocationFailures([&] { build(text); });
    }
}

}  // namespace
