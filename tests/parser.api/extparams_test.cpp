// Extension-parameter lists: the name index (duplicates refused, the old
// name kept by replace), errors, copying, writing and the factory forms.

#include <functional>
#include <tuple>

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

TEST_F(ExtParamsTest, RefusedCallsNameTheOperationAndChangeNothing) {
    using L = IExtParamsCfg;
    const auto range = IKAZException::OutOfRange;
    const auto invalid = IKAZException::InvalidData;
    const std::wstring out = L"index 2 is out of range";
    const std::vector<std::tuple<std::function<void(L&, INodeCfg*)>, IKAZException::Kind,
                                 std::wstring, std::wstring>>
        cases = {
            {[](L& l, INodeCfg*) { l[2u]; }, range, out, L"getChild"},
            {[](L& l, INodeCfg*) { l[L"zz"]; }, range, L"zz is not the name of child object",
             L"operator []"},
            {[](L& l, INodeCfg*) { l.append(nullptr); }, invalid, L"Invalid argument", L"append"},
            {[](L& l, INodeCfg* item) { l.insert(item, 2); }, range, out, L"insert"},
            {[](L& l, INodeCfg*) { l.insert(nullptr, 9); }, invalid, L"Invalid argument",
             L"insert"},
            {[](L& l, INodeCfg* item) { l.replace(item, 2); }, range, out, L"replace"},
            {[](L& l, INodeCfg*) { l.replace(nullptr, 0); }, invalid, L"Invalid argument",
             L"replace"},
            {[](L& l, INodeCfg*) { l.remove(2); }, range, out, L"remove"},
        };
    auto list = readList(kTwo);
    for (const auto& [call, kind, message, method] : cases) {
        SCOPED_TRACE(testing::PrintToString(method));
        NodePtr<IExtParamCfg> item(newItem(L"new"));
        const auto chain = thrownChain([&] { call(*list, item.get()); });
        ASSERT_EQ(chain.size(), 1u);
        EXPECT_EQ(chain[0].kind, kind);
        EXPECT_EQ(chain[0].message, message);
        EXPECT_EQ(methodOf(chain[0].context), L"kaz::kazparser::ExtParamsCfgImpl::" + method);
        EXPECT_EQ(item->getParent(), nullptr);
        EXPECT_EQ(list->toXml(), kTwo);
        EXPECT_FALSE(list->hasExtParam(L"new"));
    }
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
    std::wstring streamed;
    tableobj::StringXmlWriter out(streamed);
    list->writeXml(out);
    EXPECT_EQ(streamed, text);
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

    const std::wstring none = L"<Host/>";
    const std::wstring broken = L"<Host>";
    for (const std::wstring* source : {static_cast<const std::wstring*>(nullptr), &none, &broken}) {
        NodePtr<IExtParamsCfg> empty(KAZConfigFactory::createExtParamsCfg(source, holder.get()));
        NodePtr<IExtParamCfg> emptyItem(KAZConfigFactory::createExtParamCfg(source, holder.get()));
        EXPECT_EQ(empty->toXml() + emptyItem->toXml(),
                  L"<ExtParams></ExtParams><ExtParam></ExtParam>");
        EXPECT_EQ(emptyItem->getParent(), holder.get());
    }

    const auto doc = kaz::xml::Document::create();
    ASSERT_TRUE(doc->loadXML(text));
    auto fromDoc = KAZConfigFactory::createExtParamsCfg(doc, nullptr);
    EXPECT_EQ(NodePtr<IExtParamsCfg>(fromDoc)->toXml(), list->toXml());
    auto fromNode =
        KAZConfigFactory::createExtParamCfg(doc->selectSingleNode(L"//ExtParam"), nullptr);
    EXPECT_EQ(NodePtr<IExtParamCfg>(fromNode)->toXml(), item->toXml());
}

}  // namespace
