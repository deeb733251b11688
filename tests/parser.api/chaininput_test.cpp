// Engine references and input configurations: the two alternative inputs.

#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;

IUseDataCfg* newTables() {
    const std::wstring text = L"<UseTables><Tables name=\"Net\"></Tables></UseTables>";
    return KAZConfigFactory::createUseDataCfg(IElement::Tables, &text, nullptr);
}

IUseDataCollectorCfg* newCollector() {
    const std::wstring text = L"<UseDataCollector><Roads engineID=\"R\"/></UseDataCollector>";
    return KAZConfigFactory::createUseDataCollectorCfg(&text, nullptr);
}

using ChainInputTest = LeakCheckedTest;

TEST_F(ChainInputTest, SettersKeepOneInputReplaceKeepsBothAndTablesWin) {
    auto check = [](auto* created) {
        NodePtr<std::remove_pointer_t<decltype(created)>> node(created);
        node->setUseDataModifiers(KAZConfigFactory::createUseDataModifiersCfg(nullptr, nullptr));
        node->setUseDataCollector(newCollector());
        IUseDataCfg* tables = newTables();
        const long withCollector = MemObject::liveCount();
        node->setUseTables(tables);
        EXPECT_EQ(MemObject::liveCount(), withCollector - 2) << "the reference and its collector";
        EXPECT_EQ(node->getChild(0), tables);

        IUseDataCollectorCfg* collector = newCollector();
        EXPECT_EQ(node->replaceUseDataCollector(collector), nullptr);
        EXPECT_EQ(collector->getParent(), node.get());
        EXPECT_EQ(node->getChildCount(), 2u);
        EXPECT_EQ(node->getChild(0), tables);
        EXPECT_EQ(node->toXml().find(L"Roads"), std::wstring::npos) << "the collector is hidden";

        NodePtr<IUseDataCfg> released(node->releaseUseTables());
        EXPECT_EQ(node->getChild(0), collector) << "without tables the collector is the input";

        const std::wstring doubleText = L"<UseDouble>2</UseDouble>";
        NodePtr<> value(KAZConfigFactory::createUseDataCfg(IElement::Double, &doubleText, nullptr));
        EXPECT_FALSE(node->setChild(value.get())) << "only a data value named UseTables is taken";
        EXPECT_TRUE(node->setChild(newTables()));
        EXPECT_EQ(node->getUseDataCollector(), nullptr);
    };
    check(KAZConfigFactory::createUseEngineCfg(nullptr, nullptr));
    check(KAZConfigFactory::createInputConfigCfg(nullptr, nullptr));
}

}  // namespace
