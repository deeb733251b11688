// Extension-parameter lists: the name index (duplicates refused, the old
// name kept by replace), errors, copying, writing and the factory forms.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IExtParamCfg;
using kaz::kazparser::IExtParamsCfg;
using kaz::kazparser::KAZConfigFactory;
using kaz::kazparser::kNoPosition;

NodePtr<IExtParamsCfg> readList(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<IExtParamsCfg>(KAZConfigFactory::createExtParamsCfg(&text, parent));
}

IExtParamCfg* newItem(const std::wstring& name) {
    IExtParamCfg* item = KAZConfigFactory::createExtParamCfg(nullptr, nullptr);
    item->setParamName(name);
    return item;
}

const std::wstring kTwo =
    L"<ExtParams><ExtParam name=\"A\"></ExtParam><ExtParam name=\"C\"></ExtParam></ExtParams>";

class ExtParamsTest : public LeakCheckedTest {};

TEST_F(ExtParamsTest, RefusedCallsLeaveTheNameIndexAlone) {
    auto list = readList(kTwo);
    NodePtr<IExtParamCfg> item(newItem(L"new"));
    expectError([&] { list->insert(item.get(), 2); }, IKAZException::OutOfRange,
                L"index 2 is out of range", L"ExtParamsCfgImpl::insert");
    expectError([&] { list->replace(item.get(), 2); }, IKAZException::OutOfRange,
                L"index 2 is out of range", L"ExtParamsCfgImpl::replace");
    EXPECT_FALSE(list->hasExtParam(L"new"));
    expectError([&] { (*list)[L"zz"]; }, IKAZException::OutOfRange,
                L"zz is not the name of child object", L"ExtParamsCfgImpl::operator []");
}

TEST_F(ExtParamsTest, NamesAlreadyIndexedAreRefusedWithoutTakingTheItem) {
    auto list = readList(L"<ExtParams/>");
    EXPECT_EQ(list->append(newItem(L"A")), 1u);
    NodePtr<IExtParamCfg> second(newItem(L"A"));
    EXPECT_EQ(list->append(second.get()), kNoPosition);
    EXPECT_FALSE(list->setChild(second.get()));
    EXPECT_EQ(list->insert(second.get(), 0), kNoPosition);
    EXPECT_EQ(list->getCount(), 1u);
    EXPECT_EQ(second->getParent(), nullptr);
    IExtParamCfg* b = newItem(L"B");
    EXPECT_EQ(list->insert(b, 0), 0u);
    EXPECT_EQ(b->getParent(), list.get());
    EXPECT_EQ((*list)[L"B"], b);
    // The builder drops a duplicate the same way.
    EXPECT_EQ(
        readList(L"<ExtParams><ExtParam name=\"a\"/><ExtParam name=\"a\" desc=\"2\"/></ExtParams>")
            ->toXml(),
        L"<ExtParams><ExtParam name=\"a\"></ExtParam></ExtParams>");
}

TEST_F(ExtParamsTest, RemoveTakesEveryKeyOfTheItemOutOfTheIndex) {
    auto list = readList(kTwo);
    NodePtr<> removed(list->remove(0));
    EXPECT_EQ(removed->getParent(), nullptr);
    EXPECT_FALSE(list->hasExtParam(L"A"));
    EXPECT_EQ(list->append(newItem(L"A")), 2u) << "the name is free again";
    // A renamed item leaves no key behind that could find it once freed.
    dynamic_cast<IExtParamCfg*>(list->getChild(0))->setParamName(L"D");
    removed.reset(list->remove(0));
    EXPECT_FALSE(list->hasExtParam(L"C"));
    EXPECT_TRUE(list->hasExtParam(L"A"));
}

TEST_F(ExtParamsTest, ReplaceIndexesTheNewItemUnderTheOldName) {
    auto list = readList(kTwo);
    IExtParamCfg* b = newItem(L"B");
    NodePtr<> old(list->replace(b, 0));
    EXPECT_EQ(old->getParent(), nullptr);
    EXPECT_EQ(b->getParent(), list.get());
    old.reset();
    EXPECT_EQ((*list)[L"A"], b);
    EXPECT_FALSE(list->hasExtParam(L"B"));

    NodePtr<IExtParamsCfg> copy(dynamic_cast<IExtParamsCfg*>(list->clone()));
    EXPECT_EQ((*copy)[L"A"], copy->getChild(0));
    EXPECT_EQ((*copy)[L"C"], copy->getChild(1));
    EXPECT_FALSE(copy->hasExtParam(L"B"));
    copy->deleteChildren();
    EXPECT_FALSE(copy->hasExtParam(L"A"));

    NodePtr<> removed(list->remove(0));
    EXPECT_FALSE(list->hasExtParam(L"A")) << "the old key goes with the item it finds";
}

TEST_F(ExtParamsTest, ItemsWriteOnlyWhatTheyHold) {
    const std::wstring text =
        L"<ExtParams><ExtParam name=\"w\" desc=\"width\" scaleRelate=\"true\">"
        L"<UseDouble>2.5</UseDouble></ExtParam><ExtParam><UseInteger>3</UseInteger></ExtParam>"
        L"</ExtParams>";
    auto list = readList(text);
    EXPECT_EQ(list->toXml(), text);
    auto* item = (*list)[L"w"];
    EXPECT_EQ(item->getName(), L"ExtParam");
    EXPECT_EQ(item->getData()->getParent(), item);
    item->setScaleRelate(false);
    item->setDesc(L"");
    EXPECT_EQ(item->toXml(), L"<ExtParam name=\"w\"><UseDouble>2.5</UseDouble></ExtParam>");
}

TEST_F(ExtParamsTest, FactoryFormsBuildTheFirstElementOfTheirName) {
    auto holder = readList(L"<ExtParams/>");
    const std::wstring text =
        L"<Host><x/><ExtParams><ExtParam name=\"a\"/></ExtParams><ExtParams/></Host>";
    auto list = readList(text, holder.get());
    EXPECT_EQ(list->getParent(), holder.get());
    EXPECT_EQ(list->toXml(), L"<ExtParams><ExtParam name=\"a\"></ExtParam></ExtParams>");
    NodePtr<IExtParamCfg> item(KAZConfigFactory::createExtParamCfg(&text, holder.get()));
    EXPECT_EQ(item->getParamName(), L"a");

    for (const std::wstring source : {L"<Host/>", L"<Host>"}) {
        NodePtr<IExtParamsCfg> empty(KAZConfigFactory::createExtParamsCfg(&source, holder.get()));
        NodePtr<IExtParamCfg> emptyItem(KAZConfigFactory::createExtParamCfg(&source, holder.get()));
        EXPECT_EQ(empty->toXml() + emptyItem->toXml(),
                  L"<ExtParams></ExtParams><ExtParam></ExtParam>");
        EXPECT_EQ(emptyItem->getParent(), holder.get());
    }
}

}  // namespace
