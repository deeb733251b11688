// Extension-parameter lists: the name index.

#include "testsupport.h"

namespace {

using namespace kaztest;

NodePtr<IExtParamsCfg> readList(const std::wstring& text) {
    return NodePtr<IExtParamsCfg>(KAZConfigFactory::createExtParamsCfg(&text, nullptr));
}

IExtParamCfg* newItem(const std::wstring& name) {
    IExtParamCfg* item = KAZConfigFactory::createExtParamCfg(nullptr, nullptr);
    item->setParamName(name);
    return item;
}

using ExtParamsTest = LeakCheckedTest;

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
    EXPECT_EQ((*list)[L"B"], b);
    // A refused position leaves no key behind.
    NodePtr<IExtParamCfg> item(newItem(L"new"));
    EXPECT_FALSE(thrownChain([&] { list->insert(item.get(), 2); }).empty());
    EXPECT_FALSE(thrownChain([&] { NodePtr<>(list->replace(item.get(), 2)); }).empty());
    EXPECT_FALSE(list->hasExtParam(L"new"));
}

// Removing takes every key of the item out of the index; replacing indexes
// the new item under the old name, which goes with the item it finds.
TEST_F(ExtParamsTest, RemoveAndReplaceKeepTheIndex) {
    const std::wstring two =
        L"<ExtParams><ExtParam name=\"A\"></ExtParam><ExtParam name=\"C\"></ExtParam></ExtParams>";
    auto list = readList(two);
    NodePtr<> removed(list->remove(0));
    EXPECT_FALSE(list->hasExtParam(L"A"));
    EXPECT_EQ(list->append(newItem(L"A")), 2u) << "the name is free again";
    // A renamed item leaves no key behind that could find it once freed.
    dynamic_cast<IExtParamCfg*>(list->getChild(0))->setParamName(L"D");
    removed.reset(list->remove(0));
    EXPECT_FALSE(list->hasExtParam(L"C"));
    EXPECT_TRUE(list->hasExtParam(L"A"));

    list = readList(two);
    IExtParamCfg* b = newItem(L"B");
    NodePtr<>(list->replace(b, 0));
    EXPECT_EQ((*list)[L"A"], b);
    EXPECT_FALSE(list->hasExtParam(L"B"));
    NodePtr<IExtParamsCfg> copy(dynamic_cast<IExtParamsCfg*>(list->clone()));
    EXPECT_EQ((*copy)[L"A"], copy->getChild(0));
    EXPECT_EQ((*copy)[L"C"], copy->getChild(1));
    EXPECT_FALSE(copy->hasExtParam(L"B"));
    copy->deleteChildren();
    EXPECT_FALSE(copy->hasExtParam(L"A"));
    removed.reset(list->remove(0));
    EXPECT_FALSE(list->hasExtParam(L"A"));
}

}  // namespace
