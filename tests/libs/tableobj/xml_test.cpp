#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tableobj/TableobjFactory.h"

using namespace tableobj;

namespace {

template <class T>
std::unique_ptr<T> own(T* element) {
    return std::unique_ptr<T>(element);
}

IColumnDouble* widthColumn() {
    IColumnDouble* column = TableobjFactory::createColumnDouble(L"Width");
    column->setDesc(L"in \"m\"");
    column->appendValue(7.5);
    column->appendValue(5);
    return column;
}

ITable* roadsTable() {
    ITable* table = TableobjFactory::createTable(L"Roads", L"R&D");
    table->setProperty(L"unit", TableobjFactory::createString(L"m"));
    table->setProperty(L"lanes", TableobjFactory::createInt(2));
    table->getColumns().append(widthColumn());
    return table;
}

const std::wstring kWidthXml =
    L"<Column name=\"Width\" desc=\"in &quot;m&quot;\" datatype=\"double\">"
    L"<Row>7.5</Row><Row>5</Row></Column>";
const std::wstring kRoadsXml =
    L"<Table name=\"Roads\" desc=\"R&amp;D\"><Properties>"
    L"<Property name=\"unit\" datatype=\"string\">m</Property>"
    L"<Property name=\"lanes\" datatype=\"integer\">2</Property></Properties>" +
    kWidthXml + L"</Table>";

TEST(TableobjXml, ScalarsWriteTheirText) {
    EXPECT_EQ(own(TableobjFactory::createBool(true))->toXml(), L"true");
    EXPECT_EQ(own(TableobjFactory::createBool(false))->toXml(), L"false");
    EXPECT_EQ(own(TableobjFactory::createInt(-42))->toXml(), L"-42");
    EXPECT_EQ(own(TableobjFactory::createDouble(0.1))->toXml(), L"0.1");
    EXPECT_EQ(own(TableobjFactory::createString(L"a<b & c"))->toXml(), L"a&lt;b &amp; c");
}

TEST(TableobjXml, ContainersWriteTheVocabulary) {
    EXPECT_EQ(own(widthColumn())->toXml(), kWidthXml);

    auto flags = own(TableobjFactory::createColumnBool());
    flags->appendValue(true);
    EXPECT_EQ(flags->toXml(), L"<Column datatype=\"boolean\"><Row>true</Row></Column>");

    auto columns = own(TableobjFactory::createColumns());
    EXPECT_EQ(columns->toXml(), L"<Columns></Columns>");
    columns->append(widthColumn());
    EXPECT_EQ(columns->toXml(), L"<Columns>" + kWidthXml + L"</Columns>");

    EXPECT_EQ(own(roadsTable())->toXml(), kRoadsXml);
    EXPECT_EQ(own(TableobjFactory::createTable(L"Empty"))->toXml(),
              L"<Table name=\"Empty\"></Table>");

    auto tables = own(TableobjFactory::createTables(L"Net", L"all"));
    tables->append(roadsTable());
    const std::wstring tablesXml = L"<Tables name=\"Net\" desc=\"all\">" + kRoadsXml + L"</Tables>";
    EXPECT_EQ(tables->toXml(), tablesXml);

    auto collection = own(TableobjFactory::createTablesCollection());
    collection->append(static_cast<ITables*>(tables->clone()));
    collection->append(TableobjFactory::createTables());
    EXPECT_EQ(collection->toXml(), L"<Tables>" + tablesXml + L"<Tables></Tables></Tables>");
}

// Accepts a fixed number of pieces, then refuses every one.
class RefusingWriter : public IXmlWriter {
public:
    explicit RefusingWriter(int accepted) : left_(accepted) {}
    bool write(std::wstring) override {
        ++calls;
        return left_-- > 0;
    }
    int calls = 0;

private:
    int left_;
};

TEST(TableobjXml, WritingStopsAtTheFirstRefusedPiece) {
    auto table = own(roadsTable());
    RefusingWriter refusing(2);
    EXPECT_FALSE(table->writeXml(refusing));
    EXPECT_EQ(refusing.calls, 3);

    std::wstring text;
    StringXmlWriter collecting(text);
    EXPECT_TRUE(table->writeXml(collecting));
    EXPECT_EQ(text, kRoadsXml);
}

TEST(TableobjFactory, MapsDatatypeTexts) {
    const std::pair<const wchar_t*, IElement::ElementType> known[] = {
        {L"integer", IElement::Integer},
        {L"double", IElement::Double},
        {L"boolean", IElement::Boolean},
        {L"string", IElement::String},
    };
    for (const auto& [text, type] : known) {
        EXPECT_EQ(TableobjFactory::elementTypeFromDatatype(text), type);
        EXPECT_EQ(TableobjFactory::datatypeFromElementType(type), text);
        EXPECT_EQ(own(TableobjFactory::createColumn(type))->getDataType(), type);
    }
    for (const wchar_t* unknown : {L"", L"Integer", L"int", L"table"})
        EXPECT_EQ(TableobjFactory::elementTypeFromDatatype(unknown), IElement::NoValue);
    EXPECT_EQ(TableobjFactory::datatypeFromElementType(IElement::Table), L"");
}

TEST(TableobjFactory, ReadsValuesFromText) {
    auto flag =
        own(dynamic_cast<IBool*>(TableobjFactory::createScalar(IElement::Boolean, L"TRUE")));
    ASSERT_NE(flag, nullptr);
    EXPECT_TRUE(flag->getValue());

    auto count = own(TableobjFactory::createColumnInt());
    for (const wchar_t* text : {L"12", L" -3", L"x"}) count->appendValueText(text);
    EXPECT_EQ(count->getValue(1), -3);
    EXPECT_EQ(count->getValue(2), 0);
    count->setValueText(0, L"7");
    EXPECT_EQ(count->getValueText(0), L"7");

    auto flags = own(TableobjFactory::createColumnBool());
    for (const wchar_t* text : {L"true", L"1", L"false", L"yes"}) flags->appendValueText(text);
    EXPECT_EQ(flags->toXml(),
              L"<Column datatype=\"boolean\"><Row>true</Row><Row>true</Row>"
              L"<Row>false</Row><Row>false</Row></Column>");
}

}  // namespace
