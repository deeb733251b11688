// Presenters, presenter stages, table selections and output configurations.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IOutputConfigCfg;
using kaz::kazparser::IPresenterCfg;
using kaz::kazparser::ISelectTablesCfg;
using kaz::kazparser::IUseDataModifiersCfg;
using kaz::kazparser::IUsePresenterCfg;
using kaz::kazparser::KAZConfigFactory;

const std::wstring* const kNoText = nullptr;

IUsePresenterCfg* newStage() {
    return KAZConfigFactory::createUsePresenterCfg(kNoText, nullptr);
}

IUseDataModifiersCfg* newModifiers() {
    return KAZConfigFactory::createUseDataModifiersCfg(kNoText, nullptr);
}

class PresenterTest : public LeakCheckedTest {};

TEST_F(PresenterTest, PresenterIsAPlugInThatIsNeverValid) {
    const std::wstring text =
        L"<Label engineFile=\"l.so\" engineID=\"Text\" other=\"x\"><ParamSets/></Label>";
    NodePtr<IPresenterCfg> presenter(KAZConfigFactory::createPresenterCfg(&text, nullptr));
    EXPECT_EQ(presenter->toXml(),
              L"<Label engineFile=\"l.so\" engineID=\"Text\"><ParamSets></ParamSets></Label>");
    EXPECT_FALSE(presenter->isValid());
    NodePtr<IPresenterCfg> empty(KAZConfigFactory::createPresenterCfg(kNoText, nullptr));
    EXPECT_EQ(empty->toXml(), L"<Presenter></Presenter>");
    EXPECT_EQ(empty->getName(), L"");
}

TEST_F(PresenterTest, StageChildrenFollowTheDataFlowWhateverTheTextOrder) {
    const std::wstring text =
        L"<UsePresenter><Label engineID=\"T\"/><UseDataModifiers><Sort/></UseDataModifiers>"
        L"<SelectTables><Table name=\"Roads\"/></SelectTables></UsePresenter>";
    NodePtr<IUsePresenterCfg> stage(KAZConfigFactory::createUsePresenterCfg(&text, nullptr));
    ASSERT_EQ(stage->getChildCount(), 3u);
    EXPECT_EQ(stage->getChild(0), stage->getSelectTables());
    EXPECT_EQ(stage->getChild(1), stage->getUseDataModifiers());
    EXPECT_EQ(stage->getChild(2), stage->getPresenter());
    EXPECT_EQ(stage->getPresenter()->getParent(), stage.get());
    EXPECT_EQ(stage->toXml(),
              L"<UsePresenter><SelectTables><Table name=\"Roads\"></Table></SelectTables>"
              L"<UseDataModifiers><Sort></Sort></UseDataModifiers>"
              L"<Label engineID=\"T\"></Label></UsePresenter>");

    NodePtr<> other(newStage());
    EXPECT_FALSE(stage->setChild(other.get()));
    NodePtr<ISelectTablesCfg> selection(stage->releaseSelectTables());
    EXPECT_EQ(stage->getChild(0), stage->getUseDataModifiers());

    expectError([&] { stage->setPresenter(nullptr); }, IKAZException::InvalidData,
                L"Invalid argument", L"UsePresenterCfgImpl::setPresenter");
}

TEST_F(PresenterTest, TableSelectionKeepsAttributesAndContentAsRead) {
    const std::wstring text =
        L"<SelectTables mode=\"a &lt; b\" q=\"&quot;x&quot;&#10;\">\n  <Table name=\"R&amp;D\"/>"
        L"<![CDATA[w < 3]]><Column><UseDouble>1</UseDouble></Column></SelectTables>";
    NodePtr<ISelectTablesCfg> selection(KAZConfigFactory::createSelectTablesCfg(&text, nullptr));
    EXPECT_EQ(selection->getAttribute(L"mode"), L"a < b");
    EXPECT_EQ(selection->getAttributeName(1), L"q");
    EXPECT_EQ(selection->getChildCount(), 0u);
    const std::wstring written = selection->toXml();
    EXPECT_EQ(written,
              L"<SelectTables mode=\"a &lt; b\" q=\"&quot;x&quot;&#10;\">\n  "
              L"<Table name=\"R&amp;D\"></Table>w &lt; 3<Column><UseDouble>1</UseDouble></Column>"
              L"</SelectTables>");
    NodePtr<ISelectTablesCfg> again(KAZConfigFactory::createSelectTablesCfg(&written, nullptr));
    EXPECT_EQ(again->toXml(), written);

    selection->setAttribute(L"mode", L"all");
    selection->setAttribute(L"n", L"1");
    EXPECT_EQ(selection->getAttributeCount(), 3u);
    expectError([&] { selection->getAttribute(L"z"); }, IKAZException::OutOfRange,
                L"z is not the name of child object", L"SelectTablesCfgImpl::getAttribute");
}

class OutputConfigTest : public LeakCheckedTest {};

TEST_F(OutputConfigTest, ModifierListComesFirstThenThePresenterStagesInOrder) {
    NodePtr<IOutputConfigCfg> output(KAZConfigFactory::createOutputConfigCfg(kNoText, nullptr));
    IUsePresenterCfg* p = newStage();
    IUsePresenterCfg* q = newStage();
    EXPECT_EQ(output->appendUsePresenter(q), 1u);
    EXPECT_EQ(output->insertUsePresenter(p, 0), 0u);
    output->setUseDataModifiers(newModifiers());
    EXPECT_EQ(output->getChildCount(), 3u);
    EXPECT_EQ(output->getChild(0), output->getUseDataModifiers());
    EXPECT_EQ(output->getChild(2), q);
    EXPECT_EQ(output->getUsePresenter(1), q);
    EXPECT_EQ(output->getUsePresenter(L"UsePresenter"), p) << "the first of that name";
    EXPECT_EQ(output->getUsePresenter(L"Label"), nullptr);

    EXPECT_EQ(output->appendUsePresenter(nullptr), 3u);
    EXPECT_EQ(output->getChild(3), nullptr);
    EXPECT_EQ(output->toXml(),
              L"<OutputConfig><UseDataModifiers></UseDataModifiers><UsePresenter></UsePresenter>"
              L"<UsePresenter></UsePresenter></OutputConfig>");
    NodePtr<IOutputConfigCfg> copy(dynamic_cast<IOutputConfigCfg*>(output->clone()));
    EXPECT_EQ(copy->getUsePresenterCount(), 3u) << "the empty entry is copied";

    NodePtr<> holder(newStage());
    IUseDataModifiersCfg* modifiers = newModifiers();
    modifiers->setParent(holder.get());
    NodePtr<IUseDataModifiersCfg> old(output->replaceUseDataModifiers(modifiers));
    EXPECT_EQ(modifiers->getParent(), holder.get()) << "replace does not re-parent";
    EXPECT_EQ(old->getParent(), nullptr);
    NodePtr<IUsePresenterCfg> removed(output->removeUsePresenter(0));
    EXPECT_EQ(removed.get(), p);
    EXPECT_EQ(p->getParent(), nullptr);
    output->setUsePresenter(q, 0);  // the held stage is kept, not deleted
    EXPECT_EQ(output->getUsePresenter(0), q);
}

TEST_F(OutputConfigTest, RefusalsTestTheArgumentBeforeTheIndex) {
    NodePtr<IOutputConfigCfg> output(KAZConfigFactory::createOutputConfigCfg(kNoText, nullptr));
    output->appendUsePresenter(newStage());
    NodePtr<IUsePresenterCfg> stage(newStage());
    using O = IOutputConfigCfg;
    const std::vector<std::tuple<std::wstring, std::wstring, std::function<void(O&)>>> cases = {
        {L"setUsePresenter", L"Invalid argument", [](O& o) { o.setUsePresenter(nullptr, 5); }},
        {L"replaceUsePresenter", L"Invalid argument",
         [](O& o) { o.replaceUsePresenter(nullptr, 5); }},
        {L"insertUsePresenter", L"Invalid argument",
         [](O& o) { o.insertUsePresenter(nullptr, 5); }},
        {L"insertUsePresenter", L"index 1 is out of range",
         [&](O& o) { o.insertUsePresenter(stage.get(), 1); }},
        {L"removeUsePresenter", L"index 1 is out of range", [](O& o) { o.removeUsePresenter(1); }},
        {L"getUsePresenter", L"index 1 is out of range", [](O& o) { o.getUsePresenter(1u); }},
        {L"setUseDataModifiers", L"Invalid argument", [](O& o) { o.setUseDataModifiers(nullptr); }},
        {L"replaceUseDataModifiers", L"Invalid argument",
         [](O& o) { o.replaceUseDataModifiers(nullptr); }},
    };
    for (const auto& [method, message, call] : cases) {
        const auto chain = thrownChain([&, &call = call] { call(*output); });
        ASSERT_EQ(chain.size(), 1u) << testing::PrintToString(method);
        EXPECT_EQ(chain[0].message, message);
        EXPECT_EQ(methodOf(chain[0].context), L"kaz::kazparser::OutputConfigCfgImpl::" + method);
    }
    EXPECT_EQ(stage->getParent(), nullptr);
    EXPECT_FALSE(output->setChild(nullptr));
    NodePtr<> param(KAZConfigFactory::createParamCfg(kNoText, nullptr));
    EXPECT_FALSE(output->setChild(param.get()));
    EXPECT_EQ(output->getUsePresenterCount(), 1u);
}

}  // namespace
