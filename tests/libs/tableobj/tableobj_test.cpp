#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kazexception/KAZExceptionFactory.h"
#include "tableobj/TableobjFactory.h"
#include "tableobj/XmlEscape.h"

using namespace tableobj;
using kazexception::IKAZException;
using Factory = TableobjFactory;

namespace {

template <class T>
std::unique_ptr<T> own(T* element) {
    return std::unique_ptr<T>(element);
}

IColumnDouble* doubles(const std::wstring& name, std::vector<double> values) {
    IColumnDouble* column = Factory::createColumnDouble(name);
    for (double value : values) column->appendValue(value);
    return column;
}

IColumnDouble* widthColumn() {
    IColumnDouble* column = doubles(L"Width", {7.5, 5});
    column->setDesc(L"in \"m\"");
    return column;
}

ITable* roadsTable() {
    ITable* table = Factory::createTable(L"Roads", L"R&D");
    table->setProperty(L"unit", Factory::createString(L"m"));
    table->setProperty(L"lanes", Factory::createInt(2));
    table->getColumns().append(widthColumn());
    return table;
}

ITables* netTables() {
    ITables* tables = Factory::createTables(L"Net", L"all");
    tables->append(roadsTable());
    return tables;
}

IColumnDouble& firstColumn(ITable& table) {
    return dynamic_cast<IColumnDouble&>(*table.getColumns().get(0));
}

const std::wstring kWidthXml =
    L"<Column name=\"Width\" desc=\"in &quot;m&quot;\" datatype=\"double\">"
    L"<Row>7.5</Row><Row>5</Row></Column>";
const std::wstring kRoadsXml =
    L"<Table name=\"Roads\" desc=\"R&amp;D\"><Properties>"
    L"<Property name=\"unit\" datatype=\"string\">m</Property>"
    L"<Property name=\"lanes\" datatype=\"integer\">2</Property></Properties>" +
    kWidthXml + L"</Table>";
const std::wstring kNetXml = L"<Tables name=\"Net\" desc=\"all\">" + kRoadsXml + L"</Tables>";

// An element of every kind, its markup, and a change of something deep inside it.
struct Sample {
    std::function<IElement*()> make;
    std::wstring xml;
    std::function<void(IElement&)> change;
};

const std::vector<Sample> kSamples = {
    {[] { return Factory::createString(L"a<b & c"); }, L"a&lt;b &amp; c",
     [](IElement& e) { dynamic_cast<IString&>(e).setValue(L"y"); }},
    {[] { return Factory::createDouble(NAN); }, L"nan",
     [](IElement& e) { dynamic_cast<IDouble&>(e).setValue(0.5); }},
    {widthColumn, kWidthXml, [](IElement& e) { dynamic_cast<IColumnDouble&>(e).setValue(1, 2); }},
    {[] {
         IColumns* columns = Factory::createColumns();
         columns->append(widthColumn());
         return columns;
     },
     L"<Columns>" + kWidthXml + L"</Columns>",
     [](IElement& e) { dynamic_cast<IColumns&>(e).get(0)->setDesc(L"d"); }},
    {roadsTable, kRoadsXml,
     [](IElement& e) { firstColumn(dynamic_cast<ITable&>(e)).setValue(0, 1); }},
    {[] { return Factory::createTable(L"Empty"); }, L"<Table name=\"Empty\"></Table>",
     [](IElement& e) { dynamic_cast<ITable&>(e).setProperty(L"unit", Factory::createInt(1)); }},
    {netTables, kNetXml,
     [](IElement& e) { firstColumn(*dynamic_cast<ITables&>(e).get(0)).appendValue(3); }},
    {[] {
         ITablesCollection* collection = Factory::createTablesCollection();
         collection->append(netTables());
         collection->append(Factory::createTables());
         return collection;
     },
     L"<Tables>" + kNetXml + L"<Tables></Tables></Tables>",
     [](IElement& e) { dynamic_cast<ITablesCollection&>(e).get(0)->get(0)->setName(L"N"); }},
};

// The change to a copy leaves the original, and its markup, as they were.
TEST(TableobjElement, EveryKindWritesItsMarkupAndClonesDeeply) {
    const long start = MemObject::liveCount();
    for (const Sample& sample : kSamples) {
        SCOPED_TRACE(::testing::PrintToString(sample.xml));
        std::unique_ptr<IElement> original(sample.make());
        EXPECT_EQ(original->toXml(), sample.xml);
        std::unique_ptr<IElement> copy(original->clone());
        EXPECT_TRUE(copy->equals(*original));
        sample.change(*copy);
        EXPECT_FALSE(copy->equals(*original));
        EXPECT_FALSE(original->equals(*copy));
        EXPECT_EQ(original->toXml(), sample.xml);
    }
    EXPECT_EQ(MemObject::liveCount(), start);
}

// Names and values are compared by the clone test above.
TEST(TableobjElement, EqualityNeedsTheSameKindAndProperties) {
    EXPECT_FALSE(
        own(Factory::createColumnInt(L"W"))->equals(*own(Factory::createColumnDouble(L"W"))));
    EXPECT_FALSE(own(Factory::createInt(1))->equals(*own(Factory::createDouble(1))));
    EXPECT_FALSE(own(Factory::createTables())->equals(*own(Factory::createTablesCollection())));
    auto table = own(roadsTable()), other = own(roadsTable());
    other->setProperty(L"speed", Factory::createInt(2));
    EXPECT_FALSE(table->equals(*other));
    other->removeProperty(L"speed");
    EXPECT_TRUE(table->equals(*other));
}

TEST(TableobjElement, ListsAndPropertiesKeepOrderAndOwnership) {
    const long start = MemObject::liveCount();
    {
        auto table = own(roadsTable());
        IColumns& columns = table->getColumns();
        columns.insert(0, doubles(L"Left", {1, 2}));
        columns.append(doubles(L"Right", {3, 4}));
        EXPECT_EQ(columns.find(L"Right"), columns.get(2));
        EXPECT_EQ(columns.find(L"None"), nullptr);
        EXPECT_EQ(own(columns.remove(0))->getName(), L"Left");
        EXPECT_EQ(own(columns.replace(0, doubles(L"New", {0, 0})))->getName(), L"Width");
        EXPECT_EQ(columns.get(0)->getName(), L"New");
        EXPECT_EQ(table->getRowCount(), 2u);

        table->setProperty(L"speed", Factory::createInt(2));
        table->setProperty(L"unit", Factory::createString(L"km"));  // replaced in place
        EXPECT_EQ(table->getPropertyCount(), 3u);
        EXPECT_EQ(table->getPropertyName(0), L"unit");
        EXPECT_EQ(table->getPropertyAt(0).toXml(), L"km");
        EXPECT_EQ(table->getPropertyName(2), L"speed");
        EXPECT_TRUE(table->hasProperty(L"speed"));
        EXPECT_EQ(table->getProperty(L"height"), nullptr);
        EXPECT_FALSE(table->removeProperty(L"height"));

        // A lone column may be replaced by one of any length.
        auto single = own(Factory::createTable());
        single->getColumns().append(doubles(L"A", {1}));
        delete single->getColumns().replace(0, doubles(L"B", {1, 2, 3}));
        EXPECT_EQ(single->getRowCount(), 3u);
    }
    EXPECT_EQ(MemObject::liveCount(), start);
}

TEST(TableobjElement, RejectsBadCallsAndFreesWhatItWasGiven) {
    const long start = MemObject::liveCount();
    {
        auto table = own(roadsTable());
        IColumns& columns = table->getColumns();
        IColumnDouble& width = firstColumn(*table);
        auto wide = own(roadsTable());
        wide->getColumns().append(doubles(L"Height", {1, 2}));

        const auto range = IKAZException::OutOfRange, invalid = IKAZException::InvalidData;
        const std::wstring argument = L"Invalid argument";
        const struct {
            std::function<void()> action;
            IKAZException::Kind kind;
            std::wstring message;
        } cases[] = {
            {[&] { width.getValue(2); }, range, L"index 2 is out of range"},
            {[&] { width.setValue(7, 0); }, range, L"index 7 is out of range"},
            {[&] { width.removeRow(2); }, range, L"index 2 is out of range"},
            {[&] { columns.get(1); }, range, L"index 1 is out of range"},
            {[&] { columns.insert(2, widthColumn()); }, range, L"index 2 is out of range"},
            {[&] { columns.remove(1); }, range, L"index 1 is out of range"},
            {[&] { delete columns.replace(1, widthColumn()); }, range, L"index 1 is out of range"},
            {[&] { table->getPropertyName(2); }, range, L"index 2 is out of range"},
            {[&] { table->getPropertyAt(2); }, range, L"index 2 is out of range"},
            {[&] { columns.append(nullptr); }, invalid, argument},
            {[&] { columns.append(&width); }, invalid, argument},
            {[&] { columns.append(doubles(L"Short", {1})); }, invalid,
             L"Column \"Short\" has 1 rows, the table has 2"},
            {[&] { delete wide->getColumns().replace(1, doubles(L"One", {1})); }, invalid,
             L"Column \"One\" has 1 rows, the table has 2"},
            {[&] { table->setProperty(L"p", Factory::createColumns()); }, invalid, argument},
            {[&] { table->setProperty(L"p", nullptr); }, invalid, argument},
            {[&] { delete Factory::createColumn(IElement::Table); }, invalid, argument},
            {[&] { delete Factory::createScalar(IElement::NoValue, L"1"); }, invalid, argument},
        };
        for (const auto& c : cases) {
            try {
                c.action();
                ADD_FAILURE() << "no error: " << ::testing::PrintToString(c.message);
            } catch (IKAZException* e) {
                kazexception::ExceptionGuard guard(e);
                EXPECT_EQ(e->getKind(), c.kind);
                EXPECT_EQ(e->getMessage(), c.message);
            }
        }
        EXPECT_EQ(columns.getCount(), 1u);
        EXPECT_EQ(columns.get(0), &width);
    }
    EXPECT_EQ(MemObject::liveCount(), start);
}

// Accepts a fixed number of pieces, then refuses every one.
struct RefusingWriter : IXmlWriter {
    explicit RefusingWriter(int n) : accepted(n) {}
    bool write(std::wstring) override { return calls++ < accepted; }
    int accepted, calls = 0;
};

TEST(TableobjElement, WritingStopsAtTheFirstRefusedPiece) {
    RefusingWriter refusing(2), accepting(1000);
    EXPECT_FALSE(own(roadsTable())->writeXml(refusing));
    EXPECT_EQ(refusing.calls, 3);
    EXPECT_TRUE(own(roadsTable())->writeXml(accepting));
}

TEST(TableobjFactory, MapsDatatypeTexts) {
    const std::pair<const wchar_t*, IElement::ElementType> known[] = {
        {L"integer", IElement::Integer},
        {L"double", IElement::Double},
        {L"boolean", IElement::Boolean},
        {L"string", IElement::String}};
    for (const auto& [text, type] : known) {
        EXPECT_EQ(Factory::elementTypeFromDatatype(text), type);
        EXPECT_EQ(Factory::datatypeFromElementType(type), text);
        EXPECT_EQ(own(Factory::createColumn(type))->getDataType(), type);
    }
    for (const wchar_t* unknown : {L"", L"Integer", L"int", L"table"})
        EXPECT_EQ(Factory::elementTypeFromDatatype(unknown), IElement::NoValue);
    EXPECT_EQ(Factory::datatypeFromElementType(IElement::Table), L"");
}

TEST(TableobjFactory, ReadsValuesFromText) {
    EXPECT_EQ(own(Factory::createScalar(IElement::Boolean, L"TRUE"))->toXml(), L"true");

    auto count = own(Factory::createColumnInt());
    for (const wchar_t* text : {L"12", L" -3", L"x"}) count->appendValueText(text);
    EXPECT_EQ(count->getValue(1), -3);
    EXPECT_EQ(count->getValue(2), 0);
    count->setValueText(0, L"7");
    EXPECT_EQ(count->getValueText(0), L"7");

    auto flags = own(Factory::createColumnBool());
    for (const wchar_t* text : {L"true", L"1", L"false", L"yes"}) flags->appendValueText(text);
    EXPECT_EQ(flags->toXml(),
              L"<Column datatype=\"boolean\"><Row>true</Row><Row>true</Row>"
              L"<Row>false</Row><Row>false</Row></Column>");
}

// Stored configurations were written with these rules: "&" stays when an "a"
// or "A" follows it, and the search resumes three characters after each "&".
TEST(XmlEscape, EscapesTextAndAttributesByTheHistoricalRules) {
    const struct {
        const wchar_t* input;
        const wchar_t* text;       // after escapeText
        const wchar_t* attribute;  // after escapeAttribute
    } cases[] = {
        {L"", L"", L""},
        {L"plain", L"plain", L"plain"},
        {L"R&D", L"R&amp;D", L"R&amp;D"},
        {L"&amp;", L"&amp;", L"&amp;"},
        {L"&Amp", L"&Amp", L"&Amp"},
        {L"&lt;", L"&amp;lt;", L"&amp;lt;"},
        {L"x&", L"x&amp;", L"x&amp;"},
        {L"&&", L"&amp;&amp;", L"&amp;&amp;"},
        {L"&a&b", L"&a&b", L"&a&b"},
        {L"&a&", L"&a&", L"&a&"},
        {L"a<b>c", L"a&lt;b&gt;c", L"a&lt;b&gt;c"},
        {L"<<>>", L"&lt;&lt;&gt;&gt;", L"&lt;&lt;&gt;&gt;"},
        {L"<&>", L"&lt;&amp;&gt;", L"&lt;&amp;&gt;"},
        {L"it's", L"it's", L"it's"},
        {L"\"&\"", L"\"&amp;\"", L"&quot;&amp;&quot;"},
    };
    for (const auto& c : cases) {
        std::wstring text = c.input, attribute = c.input;
        escapeText(text);
        escapeAttribute(attribute);
        EXPECT_EQ(text, c.text) << L"text of " << c.input;
        EXPECT_EQ(attribute, c.attribute) << L"attribute of " << c.input;
    }
    // Written text also keeps what a reader would normalise, as references.
    std::wstring text, attribute;
    appendEscapedText(text, L"a\r\n\tb&<");
    appendEscapedAttribute(attribute, L"a\r\n\tb&<");
    EXPECT_EQ(text, L"a&#13;\n\tb&amp;&lt;");
    EXPECT_EQ(attribute, L"a&#13;&#10;&#9;b&amp;&lt;");
}

}  // namespace
