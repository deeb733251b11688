// Data collectors and data modifiers: what their element keeps, how they
// write, their parameter-set child, copying and the shared engine-file text.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IDataCollectorCfg;
using kaz::kazparser::IDataModifierCfg;
using kaz::kazparser::IParamSetsCfg;
using kaz::kazparser::IPlugInCfg;
using kaz::kazparser::KAZConfigFactory;

NodePtr<IParamSetsCfg> newSets() {
    return NodePtr<IParamSetsCfg>(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr));
}

class PlugInTest : public LeakCheckedTest {};

TEST_F(PlugInTest, ElementKeepsItsNameAndOnlyTheEngineAttributes) {
    const std::wstring text =
        L"<DataSource name=\"n\" engineid=\"x\" engineFile=\"c:\\e.dll\" engineID=\"E1\">"
        L"<ParamSets><ParamSet></ParamSet></ParamSets></DataSource>";
    NodePtr<IDataCollectorCfg> collector(KAZConfigFactory::createDataCollectorCfg(&text, nullptr));
    EXPECT_EQ(collector->getName(), L"DataSource");
    EXPECT_EQ(collector->toXml(),
              L"<DataSource engineFile=\"c:\\e.dll\" engineID=\"E1\"><ParamSets><ParamSet>"
              L"</ParamSet></ParamSets></DataSource>");

    // An empty attribute is not written; an empty name falls back for modifiers only.
    const std::wstring empty = L"<M engineFile=\"\" engineID=\"E2\"/>";
    NodePtr<IDataModifierCfg> modifier(KAZConfigFactory::createDataModifierCfg(&empty, nullptr));
    EXPECT_EQ(modifier->toXml(), L"<M engineID=\"E2\"></M>");
    modifier->setNodeName(L"");
    collector->setNodeName(L"");
    collector->deleteChildren();
    EXPECT_EQ(modifier->getName(), L"");
    EXPECT_EQ(modifier->toXml(), L"<DataModifiers engineID=\"E2\"></DataModifiers>");
    EXPECT_EQ(collector->toXml(), L"< engineFile=\"c:\\e.dll\" engineID=\"E1\"></>");
}

TEST_F(PlugInTest, ParamSetsChildIsTheOnlyChildAndNullIsRefused) {
    NodePtr<IPlugInCfg> node(KAZConfigFactory::createDataModifierCfg(nullptr, nullptr));
    IParamSetsCfg* first = newSets().release();
    EXPECT_TRUE(node->setChild(first));
    EXPECT_EQ(node->getChild(0), first);
    // Any other kind reaches setParamSets as null: it raises, never answers false.
    NodePtr<> other(KAZConfigFactory::createDataCollectorCfg(nullptr, nullptr));
    for (INodeCfg* wrong : {other.get(), static_cast<INodeCfg*>(nullptr)})
        expectError([&] { node->setChild(wrong); }, IKAZException::InvalidData, L"Invalid argument",
                    L"DataModifierCfgImpl::setParamSets");
    expectError([&] { node->replaceParamSets(nullptr); }, IKAZException::InvalidData,
                L"Invalid argument", L"DataModifierCfgImpl::replaceParamSets");
    EXPECT_EQ(node->getParamSets(), first);

    // replace hands the old list back detached; set deletes it.
    IParamSetsCfg* second = newSets().release();
    NodePtr<IParamSetsCfg> old(node->replaceParamSets(second));
    EXPECT_EQ(old.get(), first);
    EXPECT_EQ(old->getParent(), nullptr);
    EXPECT_EQ(second->getParent(), node.get());
    const long live = MemObject::liveCount();
    node->setParamSets(newSets().release());
    EXPECT_EQ(MemObject::liveCount(), live);
    // The list it already holds is kept, not deleted.
    node->setParamSets(node->getParamSets());
    EXPECT_EQ(node->getParamSets()->getParent(), node.get());

    NodePtr<IParamSetsCfg> released(node->releaseParamSets());
    EXPECT_EQ(released->getParent(), nullptr);
    EXPECT_EQ(node->releaseParamSets(), nullptr);
    EXPECT_EQ(node->getChildCount(), 0u);
}

TEST_F(PlugInTest, CloneDropsTheNoteAndEngineFileTextIsSharedPerClass) {
    const std::wstring text = L"<Src engineFile=\"a.dll\" engineID=\"A\"><ParamSets/></Src>";
    NodePtr<IDataCollectorCfg> a(KAZConfigFactory::createDataCollectorCfg(&text, nullptr));
    a->setNote(L"memo");
    NodePtr<IDataCollectorCfg> copy(dynamic_cast<IDataCollectorCfg*>(a->clone()));
    EXPECT_EQ(copy->getNote(), L"");

    copy->setEngineFile(L"b.dll");
    NodePtr<IDataModifierCfg> modifier(KAZConfigFactory::createDataModifierCfg(nullptr, nullptr));
    modifier->setEngineFile(L"m.dll");
    const std::wstring& held = a->getEngineFile();
    copy->getEngineFile();
    modifier->getEngineFile();
    EXPECT_EQ(held, L"b.dll");
}

}  // namespace
