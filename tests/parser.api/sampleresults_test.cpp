// Sample results: the reference text, the name index, a fixed entry's data.

#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;
using SampleResultsTest = LeakCheckedTest;

TEST_F(SampleResultsTest, ReferenceTextArrivingInPiecesIsKeptWhole) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"<SampleRefResult refData=\"t1\">Roads<![CDATA[.W]]>&amp;x</SampleRefResult>",
         L"Roads.W&x"},
        {L"<SampleRefResult refData=\"t1\">\n  </SampleRefResult>", L"t1"},
        {L"<SampleRefResult> \n<![CDATA[t2]]> </SampleRefResult>", L" \nt2 "},
    };
    for (const auto& [text, refData] : cases) {
        NodePtr<ISampleRefResultCfg> ref(
            KAZConfigFactory::createSampleRefResultCfg(&text, nullptr));
        EXPECT_EQ(ref->getRefData(), refData) << testing::PrintToString(text);
    }
}

// The later of equal names is found; the index follows removals and
// replacements, and a copy indexes its own entries.
TEST_F(SampleResultsTest, NameIndexFollowsTheListAndTheLaterEntryWins) {
    const std::wstring text =
        L"<SampleResults><SampleFixedResult name=\"a\" desc=\"d\"/><SampleRefResult name=\"b\"/>"
        L"<SampleRefResult name=\"a\"/></SampleResults>";
    NodePtr<ISampleResultsCfg> list(KAZConfigFactory::createSampleResultsCfg(&text, nullptr));
    NodePtr<ISampleResultsCfg> copy(dynamic_cast<ISampleResultsCfg*>(list->clone()));
    EXPECT_EQ((*copy)[L"a"], copy->getChild(2));
    EXPECT_EQ((*list)[L"a"], list->getChild(2));
    NodePtr<>(list->remove(2));
    EXPECT_EQ((*list)[L"a"]->getDesc(), L"d");
    NodePtr<>(list->replace(KAZConfigFactory::createSampleRefResultCfg(nullptr, nullptr), 0));
    EXPECT_FALSE(list->hasSampleResult(L"a"));
}

IUseDataCfg* newData(const std::wstring& text) {
    return KAZConfigFactory::createUseDataCfg(IElement::Double, &text, nullptr);
}

TEST_F(SampleResultsTest, FixedEntrySetChildDisplacesWhereSetDataDeletes) {
    NodePtr<ISampleFixedResultCfg> entry(
        KAZConfigFactory::createSampleFixedResultCfg(nullptr, nullptr));
    const long empty = MemObject::liveCount();
    IUseDataCfg* d1 = newData(L"<UseDouble>1</UseDouble>");
    entry->setData(d1);
    EXPECT_EQ(d1->getParent(), entry.get());
    IUseDataCfg* d2 = newData(L"<UseDouble>2</UseDouble>");
    EXPECT_TRUE(entry->setChild(d2));
    EXPECT_EQ(entry->getData(), d2);
    EXPECT_EQ(d2->getParent(), nullptr);
    EXPECT_EQ(entry->getChildCount(), 1u);
    delete d1;  // let go of by the entry: the caller's to delete

    entry->setData(nullptr);  // deletes d2 with its value
    EXPECT_EQ(MemObject::liveCount(), empty);
    EXPECT_EQ(entry->getChildCount(), 0u);
}

}  // namespace
