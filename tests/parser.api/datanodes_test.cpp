// The typed-value node: the element it writes, which its value's type names
// or else its own, and its ownership of the value.

#include "tableobj/TableobjFactory.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;
using tableobj::TableobjFactory;

NodePtr<IUseDataCfg> readData(IElement::ElementType type, const std::wstring& text) {
    return NodePtr<IUseDataCfg>(KAZConfigFactory::createUseDataCfg(type, &text, nullptr));
}

NodePtr<IUseDataCfg> emptyData() {
    return NodePtr<IUseDataCfg>(
        KAZConfigFactory::createUseDataCfg(IElement::NoValue, nullptr, nullptr));
}

using DataNodeTest = LeakCheckedTest;

// A value node writes the element its value's type names, else the element
// name it was read under or given; a number that names no type reads nothing.
TEST_F(DataNodeTest, ValuesWriteTheElementTheirTypeNamesElseTheirOwn) {
    const struct {
        std::function<IElement*()> make;
        const wchar_t* written;  // the element was named "Held" before
    } stored[] = {
        {[] { return TableobjFactory::createBool(true); }, L"<UseBoolean>true</UseBoolean>"},
        {[] { return TableobjFactory::createString(L"R&D <x>"); },
         L"<UseString>R&amp;D &lt;x&gt;</UseString>"},
        {[] { return TableobjFactory::createColumnInt(L"N"); },
         L"<UseColumn><Column name=\"N\" datatype=\"integer\"></Column></UseColumn>"},
        {[] { return TableobjFactory::createColumns(); }, L"<Held><Columns></Columns></Held>"},
        {[] { return TableobjFactory::createTablesCollection(); },
         L"<Held><Tables></Tables></Held>"},
    };
    for (const auto& c : stored) {
        auto node = emptyData();
        node->setElementName(L"Held");
        node->setValue(c.make());
        EXPECT_EQ(node->getDataType(), node->getValue()->getElementType());
        EXPECT_EQ(node->toXml(), c.written);
    }
    const struct {
        IElement::ElementType type;
        const wchar_t* text;
        const wchar_t* written;
    } read[] = {
        {IElement::Integer, L"<Held>5</Held>", L"<UseInteger>5</UseInteger>"},
        {IElement::Columns,
         L"<Held><Columns><Column datatype=\"integer\"><Row>2</Row></Column>"
         L"</Columns></Held>",
         L"<Held><Columns><Column datatype=\"integer\"><Row>2</Row></Column></Columns></Held>"},
        {static_cast<IElement::ElementType>(6), L"<Held>5</Held>", L"<Held></Held>"},  // no type
        {IElement::Table, L"<UseTable> </UseTable>", L"<UseTable></UseTable>"},
        {IElement::Double, L"<UseDouble>1", L"<UseData></UseData>"},  // malformed: empty
    };
    for (const auto& c : read) EXPECT_EQ(readData(c.type, c.text)->toXml(), c.written) << c.text;
}

TEST_F(DataNodeTest, ValuesAreOwnedUntilReplacedOrReleased) {
    auto node = emptyData();
    const long empty = MemObject::liveCount();
    node->setInt(3);
    IElement* first = node->getValue();
    node->setInt(4);
    EXPECT_EQ(node->getValue(), first) << "a value of the type is kept";
    node->setDouble(2.5);
    node->setBool(false);
    node->setString(L"a");
    EXPECT_EQ(node->toXml(), L"<UseString>a</UseString>");
    EXPECT_EQ(MemObject::liveCount(), empty + 1) << "each replaced value was freed";
    IElement* held = node->getValue();
    for (IElement* refused : {static_cast<IElement*>(nullptr), held}) {
        expectError([&] { node->replaceValue(refused); }, IKAZException::InvalidData,
                    L"Invalid argument", L"UseDataCfgImpl::replaceValue");
        EXPECT_EQ(node->getValue(), held);
    }
    std::unique_ptr<IElement> previous(node->replaceValue(TableobjFactory::createInt(1)));
    EXPECT_EQ(previous.get(), held);
    EXPECT_EQ(node->getName(), L"UseInteger");
    std::unique_ptr<IElement> released(node->releaseValue());
    EXPECT_EQ(released->getElementType(), IElement::Integer);
    EXPECT_EQ(node->getDataType(), IElement::NoValue);
    EXPECT_EQ(node->getName(), L"UseData");
    node->setBool(true);
    node->setValue(nullptr);
    EXPECT_EQ(MemObject::liveCount(), empty + 2) << "only the two handed back live";
    EXPECT_EQ(node->getName(), L"UseBoolean");
}

}  // namespace
