// Sample results: reading and writing the list and its entries, the name
// index, the data node of a fixed entry and the reference entry's text.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::ISampleFixedResultCfg;
using kaz::kazparser::ISampleRefResultCfg;
using kaz::kazparser::ISampleResultsCfg;
using kaz::kazparser::IUseDataCfg;
using kaz::kazparser::KAZConfigFactory;

NodePtr<ISampleResultsCfg> readList(const std::wstring& text) {
    return NodePtr<ISampleResultsCfg>(KAZConfigFactory::createSampleResultsCfg(&text, nullptr));
}

IUseDataCfg* newData(const std::wstring& text) {
    return KAZConfigFactory::createUseDataCfg(tableobj::IElement::Double, &text, nullptr);
}

ISampleRefResultCfg* newRef(const std::wstring& name) {
    ISampleRefResultCfg* ref = KAZConfigFactory::createSampleRefResultCfg(nullptr, nullptr);
    ref->setSampleName(name);
    return ref;
}

class SampleResultsTest : public LeakCheckedTest {};

TEST_F(SampleResultsTest, ReadsAndWritesTheirAttributesAndChildren) {
    const std::wstring text =
        L"<SampleResults name=\"S\"><SampleFixedResult name=\"a\" desc=\"d\" x=\"1\">"
        L"<UseDouble>1.5</UseDouble></SampleFixedResult>"
        L"<SampleRefResult name=\"b\" refData=\"t1\"></SampleRefResult></SampleResults>";
    auto list = readList(text);
    EXPECT_EQ(list->toXml(),
              L"<SampleResults name=\"S\"><SampleFixedResult name=\"a\" desc=\"d\">"
              L"<UseDouble>1.5</UseDouble></SampleFixedResult>"
              L"<SampleRefResult name=\"b\" refData=\"t1\"></SampleRefResult>"
              L"</SampleResults>");
    EXPECT_EQ((*list)[L"a"]->getDesc(), L"d");
    NodePtr<ISampleResultsCfg> copy(dynamic_cast<ISampleResultsCfg*>(list->clone()));
    EXPECT_EQ((*copy)[L"b"], copy->getChild(1));  // the copy indexes its own entries
}

TEST_F(SampleResultsTest, ReferenceTextArrivingInPiecesIsKeptWhole) {
    const std::vector<std::pair<std::wstring, std::wstring>> cases = {
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

TEST_F(SampleResultsTest, NameIndexFollowsTheListAndTheLaterEntryWins) {
    auto list = readList(L"<SampleResults/>");
    ISampleRefResultCfg* first = newRef(L"a");
    ISampleRefResultCfg* second = newRef(L"a");
    list->append(first);
    list->append(second);
    EXPECT_EQ((*list)[L"a"], second);
    NodePtr<>(list->remove(1));
    EXPECT_EQ((*list)[L"a"], first);
    NodePtr<>(list->replace(newRef(L"b"), 0));
    EXPECT_FALSE(list->hasSampleResult(L"a"));
    expectError([&] { (*list)[L"a"]; }, IKAZException::OutOfRange,
                L"a is not the name of child object", L"SampleResultsCfgImpl::operator []");
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
    expectError([&] { entry->setChild(nullptr); }, IKAZException::InvalidData, L"Invalid argument",
                L"SampleFixedResultCfgImpl::setChild");

    // A second data element read into one entry replaces the first; nothing leaks.
    const std::wstring two =
        L"<SampleFixedResult><UseDouble>1</UseDouble><UseDouble>2</UseDouble></SampleFixedResult>";
    EXPECT_EQ(NodePtr<>(KAZConfigFactory::createSampleFixedResultCfg(&two, nullptr))->toXml(),
              L"<SampleFixedResult><UseDouble>2</UseDouble></SampleFixedResult>");

    NodePtr<ISampleRefResultCfg> ref(newRef(L"r"));
    expectError([&] { ref->setChild(entry.get()); }, IKAZException::InvalidData,
                L"Do not use this method", L"SampleRefResultCfgImpl::setChild");
}

}  // namespace
