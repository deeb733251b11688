// Collector references and modifier lists: children told apart by kind, the
// replace operations that leave the new child's parent alone, look-ups by
// name, and the forms that read the first element of their name.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IDataCollectorCfg;
using kaz::kazparser::IDataModifierCfg;
using kaz::kazparser::ISampleResultsCfg;
using kaz::kazparser::IUseDataCollectorCfg;
using kaz::kazparser::IUseDataModifiersCfg;
using kaz::kazparser::KAZConfigFactory;

const std::wstring kCollector =
    L"<UseDataCollector><DataSource engineFile=\"e.dll\" engineID=\"E1\"><ParamSets>"
    L"<ParamSet "
    L"name=\"P\"><Width><UseDouble>2.5</UseDouble></Width></ParamSet></ParamSets></DataSource>"
    L"<SampleResults name=\"S\"><SampleRefResult name=\"a\" refData=\"t1\"></SampleRefResult>"
    L"</SampleResults></UseDataCollector>";
const std::wstring kModifiers =
    L"<UseDataModifiers><Filter engineID=\"F\"></Filter><Sort engineFile=\"s.dll\"></Sort>"
    L"<Filter engineID=\"G\"></Filter></UseDataModifiers>";

IDataModifierCfg* newModifier(const std::wstring& name) {
    IDataModifierCfg* modifier = KAZConfigFactory::createDataModifierCfg(nullptr, nullptr);
    modifier->setNodeName(name);
    return modifier;
}

class UseDataCollectorTest : public LeakCheckedTest {};

TEST_F(UseDataCollectorTest, FormsReadTheFirstElementOfTheirName) {
    const std::wstring text = L"<Chain>" + kCollector + kModifiers + L"</Chain>";
    NodePtr<IUseDataCollectorCfg> collector(
        KAZConfigFactory::createUseDataCollectorCfg(&text, nullptr));
    NodePtr<IUseDataModifiersCfg> list(KAZConfigFactory::createUseDataModifiersCfg(&text, nullptr));
    EXPECT_EQ(collector->toXml(), kCollector);
    EXPECT_EQ(list->toXml(), kModifiers);
    const IDataCollectorCfg* source = collector->getDataCollector();
    EXPECT_EQ(source->getEngineID(), L"E1");
    EXPECT_EQ(source->getParamSets()->getParamSet(L"ParamSet")->getParamSetName(), L"P");
    EXPECT_EQ((*list)[L"Filter"]->getEngineID(), L"G");

    // No such element: the empty node with the given parent.
    const std::wstring none = L"<Chain/>";
    NodePtr<IUseDataCollectorCfg> empty(
        KAZConfigFactory::createUseDataCollectorCfg(&none, list.get()));
    EXPECT_EQ(empty->toXml(), L"<UseDataCollector></UseDataCollector>");
    EXPECT_EQ(empty->getParent(), list.get());
}

TEST_F(UseDataCollectorTest, ChildrenAreToldApartByKindAndReplaceLeavesTheNewParent) {
    const std::wstring text = L"<UseDataCollector><SampleResults/></UseDataCollector>";
    NodePtr<IUseDataCollectorCfg> ref(KAZConfigFactory::createUseDataCollectorCfg(&text, nullptr));
    EXPECT_EQ(ref->getChildCount(), 1u);
    EXPECT_EQ(ref->getChild(0)->getNodeType(), INodeCfg::SampleResults);
    EXPECT_FALSE(ref->isValid());
    NodePtr<> sets(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr));
    EXPECT_FALSE(ref->setChild(sets.get()));
    EXPECT_EQ(sets->getParent(), nullptr);
    expectError([&] { ref->setChild(nullptr); }, IKAZException::InvalidData, L"Invalid argument",
                L"UseDataCollectorCfgImpl::setChild");

    EXPECT_TRUE(ref->setChild(KAZConfigFactory::createDataCollectorCfg(nullptr, nullptr)));
    EXPECT_TRUE(ref->isValid());
    EXPECT_EQ(ref->getChild(1), ref->getSampleResults());

    // replace* take the new child without making it theirs in name.
    IDataCollectorCfg* collector = KAZConfigFactory::createDataCollectorCfg(nullptr, nullptr);
    ISampleResultsCfg* results = KAZConfigFactory::createSampleResultsCfg(nullptr, nullptr);
    NodePtr<> oldCollector(ref->replaceDataCollector(collector));
    NodePtr<> oldResults(ref->replaceSampleResults(results));
    EXPECT_EQ(collector->getParent(), nullptr);
    EXPECT_EQ(results->getParent(), nullptr);
    EXPECT_EQ(oldCollector->getParent(), nullptr);
    EXPECT_EQ(oldResults->getParent(), nullptr);
    expectError([&] { ref->replaceDataCollector(nullptr); }, IKAZException::InvalidData,
                L"Invalid argument", L"UseDataCollectorCfgImpl::replaceDataCollector");

    NodePtr<IUseDataCollectorCfg> copy(dynamic_cast<IUseDataCollectorCfg*>(ref->clone()));
    EXPECT_EQ(copy->getDataCollector()->getParent(), copy.get());
    const long live = MemObject::liveCount();
    ref->setDataCollector(KAZConfigFactory::createDataCollectorCfg(nullptr, nullptr));
    EXPECT_EQ(MemObject::liveCount(), live);  // the replaced collector was deleted
    NodePtr<>(ref->releaseSampleResults());
    EXPECT_EQ(ref->releaseSampleResults(), nullptr);
}

TEST_F(UseDataCollectorTest, ModifierListTakesOnlyModifiersAndFindsTheLastOfAName) {
    const std::wstring empty = L"<UseDataModifiers/>";
    NodePtr<IUseDataModifiersCfg> list(
        KAZConfigFactory::createUseDataModifiersCfg(&empty, nullptr));
    expectError([&] { (*list)[L"m"]; }, IKAZException::OutOfRange,
                L"m is not the name of child object", L"UseDataModifiersCfgImpl::operator []");

    EXPECT_TRUE(list->setChild(newModifier(L"a")));
    list->append(newModifier(L"b"));
    EXPECT_EQ(list->insert(newModifier(L"m"), 1), 1u);
    EXPECT_EQ(list->append(newModifier(L"x")), 4u);
    IDataModifierCfg* later = newModifier(L"a");
    NodePtr<>(list->replace(later, 3));
    EXPECT_EQ(list->toXml(), L"<UseDataModifiers><a></a><m></m><b></b><a></a></UseDataModifiers>");
    EXPECT_EQ((*list)[L"a"], later);
}

}  // namespace
