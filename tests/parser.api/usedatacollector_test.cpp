// Collector references and modifier lists: validity, order, look-ups.

#include "testsupport.h"

namespace {

using namespace kaztest;
using UseDataCollectorTest = LeakCheckedTest;

TEST_F(UseDataCollectorTest, ValidWithACollectorWhichComesFirst) {
    const std::wstring text = L"<UseDataCollector><SampleResults/></UseDataCollector>";
    NodePtr<IUseDataCollectorCfg> ref(KAZConfigFactory::createUseDataCollectorCfg(&text, nullptr));
    EXPECT_EQ(ref->getChildCount(), 1u);
    EXPECT_FALSE(ref->isValid());
    EXPECT_TRUE(ref->setChild(KAZConfigFactory::createDataCollectorCfg(nullptr, nullptr)));
    EXPECT_TRUE(ref->isValid());
    EXPECT_EQ(ref->getChild(0), ref->getDataCollector());
    EXPECT_EQ(ref->getChild(1), ref->getSampleResults());
}

TEST_F(UseDataCollectorTest, ModifierListFindsTheLastOfAName) {
    NodePtr<IUseDataModifiersCfg> list(
        KAZConfigFactory::createUseDataModifiersCfg(nullptr, nullptr));
    for (const wchar_t* name : {L"a", L"b", L"a"}) {
        list->append(KAZConfigFactory::createDataModifierCfg(nullptr, nullptr));
        dynamic_cast<IDataModifierCfg*>(list->getChild(list->getCount() - 1))->setNodeName(name);
    }
    EXPECT_EQ((*list)[L"a"], list->getChild(2));
    NodePtr<>(list->remove(2));
    EXPECT_EQ((*list)[L"a"], list->getChild(0));
}

}  // namespace
