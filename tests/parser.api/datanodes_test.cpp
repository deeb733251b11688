// The data-value node kinds: names, writing, value ownership and the child
// operations they refuse.

#include <functional>

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

NodePtr<IUseDataCfg> emptyData() {
    return NodePtr<IUseDataCfg>(
        KAZConfigFactory::createUseDataCfg(IElement::NoValue, nullptr, nullptr));
}
NodePtr<IUseRefDataCfg> emptyReference() {
    return NodePtr<IUseRefDataCfg>(
        KAZConfigFactory::createUseRefDataCfg(IElement::NoValue, nullptr, nullptr));
}
NodePtr<ILanguageStringCfg> emptyLanguageString() {
    return NodePtr<ILanguageStringCfg>(KAZConfigFactory::createLanguageStringCfg(nullptr, nullptr));
}

class DataNodeTest : public LeakCheckedTest {};

TEST_F(DataNodeTest, KindsAnswerTheirDataTypesAndTakeNoChild) {
    auto data = emptyData();
    auto reference = emptyReference();
    auto text = emptyLanguageString();
    EXPECT_EQ(text->getDataType(), IElement::NoValue);
    text->setStringID(L"IDS_ROAD");
    EXPECT_EQ(text->getDataType(), IElement::String);
    EXPECT_EQ(reference->getDataType(), IElement::NoValue);
    auto child = emptyData();
    expectError([&] { data->setChild(child.get()); }, IKAZException::InvalidData,
                L"Do not use this method", L"UseDataCfgImpl::setChild");
    EXPECT_FALSE(reference->setChild(child.get()));
    EXPECT_FALSE(text->setChild(child.get()));
    EXPECT_EQ(child->getParent(), nullptr);
}

TEST_F(DataNodeTest, StoredValuesNameTheElementWhereTheirTypeHasAName) {
    struct Case {
        std::function<IElement*()> make;
        const wchar_t* written;  // the element was named "Held" before
    };
    const Case cases[] = {
        {[] { return TableobjFactory::createBool(true); }, L"<UseBoolean>true</UseBoolean>"},
        {[] { return TableobjFactory::createDouble(0.1); }, L"<UseDouble>0.1</UseDouble>"},
        {[] { return TableobjFactory::createString(L"R&D <x>"); },
         L"<UseString>R&amp;D &lt;x&gt;</UseString>"},
        {[] { return TableobjFactory::createColumnInt(L"N"); },
         L"<UseColumn><Column name=\"N\" datatype=\"integer\"></Column></UseColumn>"},
        {[] { return TableobjFactory::createColumns(); }, L"<Held><Columns></Columns></Held>"},
        {[] { return TableobjFactory::createTablesCollection(); },
         L"<Held><Tables></Tables></Held>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.written)));
        auto node = emptyData();
        EXPECT_EQ(node->toXml(), L"<UseData></UseData>");
        node->setElementName(L"Held");
        node->setValue(c.make());
        EXPECT_EQ(node->getDataType(), node->getValue()->getElementType());
        EXPECT_EQ(node->toXml(), c.written);
    }
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
