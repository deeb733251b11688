// Plug-ins: the element name they fall back to, copying, the engine file.

#include "testsupport.h"

namespace {

using namespace kaztest;
using PlugInTest = LeakCheckedTest;

// An empty element name falls back to the kind's tag, but for collectors.
TEST_F(PlugInTest, AnEmptyNameFallsBackToTheTagButForCollectors) {
    const std::wstring text = L"<M engineID=\"E\"/>";
    NodePtr<IPlugInCfg> nodes[] = {
        NodePtr<IPlugInCfg>(KAZConfigFactory::createDataModifierCfg(&text, nullptr)),
        NodePtr<IPlugInCfg>(KAZConfigFactory::createPresenterCfg(&text, nullptr)),
        NodePtr<IPlugInCfg>(KAZConfigFactory::createDataCollectorCfg(&text, nullptr))};
    const wchar_t* written[] = {L"<DataModifiers engineID=\"E\"></DataModifiers>",
                                L"<Presenter engineID=\"E\"></Presenter>", L"< engineID=\"E\"></>"};
    for (int i = 0; i < 3; ++i) {
        nodes[i]->setNodeName(L"");
        EXPECT_EQ(nodes[i]->getName(), L"");
        EXPECT_EQ(nodes[i]->toXml(), written[i]);
    }
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
