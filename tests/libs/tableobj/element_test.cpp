#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "kazexception/KAZExceptionFactory.h"
#include "tableobj/TableobjFactory.h"

using namespace tableobj;
using kazexception::IKAZException;

namespace {

using Factory = TableobjFactory;

IColumnDouble* doubles(const std::wstring& name, std::vector<double> values) {
    IColumnDouble* column = Factory::createColumnDouble(name);
    for (double value : values) column->appendValue(value);
    return column;
}

ITable* sampleTable() {
    ITable* table = Factory::createTable(L"Roads", L"main");
    table->setProperty(L"unit", Factory::createString(L"m"));
    table->getColumns().append(doubles(L"Width", {7.5, 5}));
    return table;
}

ITables* sampleTables() {
    ITables* tables = Factory::createTables(L"Net");
    tables->append(sampleTable());
    return tables;
}

IColumnDouble& firstColumn(ITable& table) {
    return dynamic_cast<IColumnDouble&>(*table.getColumns().get(0));
}

// An element of every kind, and a change of something deep inside it.
struct Sample {
    std::function<IElement*()> make;
    std::function<void(IElement&)> change;
};

const std::vector<Sample> kSamples = {
    {[] { return Factory::createString(L"x"); },
     [](IElement& e) { dynamic_cast<IString&>(e).setValue(L"y"); }},
    {[] { return Factory::createInt(1); }, [](IElement& e) { dynamic_cast<IInt&>(e).setValue(2); }},
    {[] { return Factory::createDouble(NAN); },
     [](IElement& e) { dynamic_cast<IDouble&>(e).setValue(0.5); }},
    {[] { return Factory::createBool(true); },
     [](IElement& e) { dynamic_cast<IBool&>(e).setValue(false); }},
    {[] {
         return doubles(L"W", {1, NAN});
     },
     [](IElement& e) { dynamic_cast<IColumnDouble&>(e).setValue(1, 2); }},
    {[] {
         IColumns* columns = Factory::createColumns();
         columns->append(doubles(L"W", {1}));
         return columns;
     },
     [](IElement& e) { dynamic_cast<IColumns&>(e).get(0)->setDesc(L"d"); }},
    {[] { return sampleTable(); },
     [](IElement& e) { firstColumn(dynamic_cast<ITable&>(e)).setValue(0, 1); }},
    {[] { return sampleTable(); },
     [](IElement& e) { dynamic_cast<ITable&>(e).setProperty(L"unit", Factory::createInt(1)); }},
    {[] { return sampleTables(); },
     [](IElement& e) { firstColumn(*dynamic_cast<ITables&>(e).get(0)).appendValue(3); }},
    {[] {
         ITablesCollection* collection = Factory::createTablesCollection();
         collection->append(sampleTables());
         return collection;
     },
     [](IElement& e) { dynamic_cast<ITablesCollection&>(e).get(0)->get(0)->setName(L"N"); }},
};

TEST(TableobjElement, ClonesAreDeepAndIndependent) {
    const long start = MemObject::liveCount();
    for (std::size_t i = 0; i < kSamples.size(); ++i) {
        std::unique_ptr<IElement> original(kSamples[i].make());
        std::unique_ptr<IElement> copy(original->clone());
        const std::wstring xml = original->toXml();
        EXPECT_TRUE(copy->equals(*original)) << "sample " << i;
        EXPECT_EQ(copy->getElementType(), original->getElementType());

        kSamples[i].change(*copy);
        EXPECT_FALSE(copy->equals(*original)) << "sample " << i;
        EXPECT_FALSE(original->equals(*copy)) << "sample " << i;
        EXPECT_EQ(original->toXml(), xml) << "sample " << i;
    }
    EXPECT_EQ(MemObject::liveCount(), start);
}

TEST(TableobjElement, EqualityNeedsSameKindNamesAndValues) {
    auto table = std::unique_ptr<ITable>(sampleTable());
    auto renamed = std::unique_ptr<ITable>(sampleTable());
    renamed->setDesc(L"other");
    EXPECT_FALSE(table->equals(*renamed));

    auto ints = std::unique_ptr<IColumnInt>(Factory::createColumnInt(L"W"));
    auto empty = std::unique_ptr<IColumnDouble>(Factory::createColumnDouble(L"W"));
    EXPECT_FALSE(ints->equals(*empty));
    EXPECT_FALSE(std::unique_ptr<IInt>(Factory::createInt(1))
                     ->equals(*std::unique_ptr<IDouble>(Factory::createDouble(1))));
    EXPECT_FALSE(
        std::unique_ptr<ITables>(Factory::createTables())
            ->equals(*std::unique_ptr<ITablesCollection>(Factory::createTablesCollection())));

    auto other = std::unique_ptr<ITable>(sampleTable());
    other->setProperty(L"lanes", Factory::createInt(2));
    EXPECT_FALSE(table->equals(*other));
    other->removeProperty(L"lanes");
    EXPECT_TRUE(table->equals(*other));
}

TEST(TableobjElement, ListsAndPropertiesKeepOrderAndOwnership) {
    const long start = MemObject::liveCount();
    {
        std::unique_ptr<ITable> table(sampleTable());
        IColumns& columns = table->getColumns();
        columns.insert(0, doubles(L"Left", {1, 2}));
        columns.append(doubles(L"Right", {3, 4}));
        EXPECT_EQ(columns.find(L"Right"), columns.get(2));
        EXPECT_EQ(columns.find(L"None"), nullptr);

        std::unique_ptr<IColumn> removed(columns.remove(0));
        EXPECT_EQ(removed->getName(), L"Left");
        std::unique_ptr<IColumn> replaced(columns.replace(0, doubles(L"New", {0, 0})));
        EXPECT_EQ(replaced->getName(), L"Width");
        EXPECT_EQ(columns.get(0)->getName(), L"New");
        EXPECT_EQ(table->getRowCount(), 2u);

        table->setProperty(L"lanes", Factory::createInt(2));
        table->setProperty(L"unit", Factory::createString(L"km"));  // replaced in place
        EXPECT_EQ(table->getPropertyCount(), 2u);
        EXPECT_EQ(table->getPropertyName(0), L"unit");
        EXPECT_EQ(table->getPropertyAt(0).toXml(), L"km");
        EXPECT_TRUE(table->hasProperty(L"lanes"));
        EXPECT_EQ(table->getProperty(L"speed"), nullptr);
        EXPECT_FALSE(table->removeProperty(L"speed"));

        // A lone column may be replaced by one of any length.
        ITable* single = Factory::createTable();
        single->getColumns().append(doubles(L"A", {1}));
        delete single->getColumns().replace(0, doubles(L"B", {1, 2, 3}));
        EXPECT_EQ(single->getRowCount(), 3u);
        delete single;
    }
    EXPECT_EQ(MemObject::liveCount(), start);
}

struct Thrown {
    IKAZException::Kind kind;
    std::wstring message;
};

std::optional<Thrown> thrown(const std::function<void()>& action) {
    try {
        action();
    } catch (IKAZException* e) {
        kazexception::ExceptionGuard guard(e);
        return Thrown{e->getKind(), e->getMessage()};
    }
    return std::nullopt;
}

TEST(TableobjElement, RejectsBadCallsAndFreesWhatItWasGiven) {
    const long start = MemObject::liveCount();
    std::unique_ptr<ITable> table(sampleTable());
    IColumns& columns = table->getColumns();
    IColumn* present = columns.get(0);
    std::unique_ptr<IColumnDouble> column(doubles(L"Width", {1}));
    std::unique_ptr<ITables> tables(Factory::createTables());
    std::unique_ptr<ITable> wide(sampleTable());
    wide->getColumns().append(doubles(L"Height", {1, 2}));

    const struct {
        std::function<void()> action;
        IKAZException::Kind kind;
        std::wstring message;
    } cases[] = {
        {[&] { column->getValue(1); }, IKAZException::OutOfRange, L"index 1 is out of range"},
        {[&] { column->setValue(7, 0); }, IKAZException::OutOfRange, L"index 7 is out of range"},
        {[&] { column->removeRow(1); }, IKAZException::OutOfRange, L"index 1 is out of range"},
        {[&] { column->getValueText(2); }, IKAZException::OutOfRange, L"index 2 is out of range"},
        {[&] { columns.get(1); }, IKAZException::OutOfRange, L"index 1 is out of range"},
        {[&] {
             columns.insert(2, doubles(L"X", {1, 2}));
         },
         IKAZException::OutOfRange, L"index 2 is out of range"},
        {[&] { tables->remove(0); }, IKAZException::OutOfRange, L"index 0 is out of range"},
        {[&] { delete tables->replace(0, sampleTable()); }, IKAZException::OutOfRange,
         L"index 0 is out of range"},
        {[&] { table->getPropertyName(1); }, IKAZException::OutOfRange, L"index 1 is out of range"},
        {[&] { columns.append(nullptr); }, IKAZException::InvalidData, L"Invalid argument"},
        {[&] { columns.append(present); }, IKAZException::InvalidData, L"Invalid argument"},
        {[&] { columns.append(doubles(L"Short", {1})); }, IKAZException::InvalidData,
         L"Column \"Short\" has 1 rows, the table has 2"},
        {[&] {
             delete wide->getColumns().replace(1, doubles(L"Long", {1, 2, 3}));
         },
         IKAZException::InvalidData, L"Column \"Long\" has 3 rows, the table has 2"},
        {[&] { table->setProperty(L"p", Factory::createColumns()); }, IKAZException::InvalidData,
         L"Invalid argument"},
        {[&] { table->setProperty(L"p", nullptr); }, IKAZException::InvalidData,
         L"Invalid argument"},
        {[&] { delete Factory::createColumn(IElement::Table); }, IKAZException::InvalidData,
         L"Invalid argument"},
        {[&] { delete Factory::createScalar(IElement::NoValue, L"1"); }, IKAZException::InvalidData,
         L"Invalid argument"},
    };
    for (const auto& c : cases) {
        const std::optional<Thrown> result = thrown(c.action);
        ASSERT_TRUE(result.has_value()) << c.message;
        EXPECT_EQ(result->kind, c.kind) << c.message;
        EXPECT_EQ(result->message, c.message);
    }
    EXPECT_EQ(columns.getCount(), 1u);
    EXPECT_EQ(columns.get(0), present);
    table.reset();
    column.reset();
    tables.reset();
    wide.reset();
    EXPECT_EQ(MemObject::liveCount(), start);
}

}  // namespace
