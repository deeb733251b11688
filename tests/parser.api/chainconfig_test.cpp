// Complete input and output configurations through every factory form, the
// forms that select their element from a larger text, and copies.

#include <type_traits>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IInputConfigCfg;
using kaz::kazparser::IOutputConfigCfg;
using kaz::kazparser::IParamCfg;
using kaz::kazparser::ISelectTablesCfg;
using kaz::kazparser::IUseEngineCfg;
using kaz::kazparser::IUseExpressionCfg;
using kaz::kazparser::IUsePresenterCfg;
using kaz::kazparser::KAZConfigFactory;

const std::wstring kInputText =
    L"<InputConfig><UseDataCollector>"
    L"<RoadCollector engineFile=\"roads.so\" engineID=\"Roads\"><ParamSets>"
    L"<ParamSet name=\"Source\"><Layer><UseString>ROADS</UseString></Layer>"
    L"<Filter><UseExpression>Width &gt; 3</UseExpression></Filter></ParamSet>"
    L"</ParamSets></RoadCollector>"
    L"<SampleResults name=\"S\"><SampleFixedResult name=\"w\" desc=\"Width\">"
    L"<UseDouble>2.5</UseDouble></SampleFixedResult>"
    L"<SampleRefResult name=\"r\" refData=\"t1\"></SampleRefResult></SampleResults>"
    L"</UseDataCollector>"
    L"<UseDataModifiers><Sort engineID=\"Sort\"><ParamSets><ParamSet><By>"
    L"<UseString>Name</UseString></By></ParamSet></ParamSets></Sort>"
    L"<DataModifiers engineID=\"Dedupe\"></DataModifiers></UseDataModifiers>"
    L"</InputConfig>";

const std::wstring kOutputText =
    L"<OutputConfig><UseDataModifiers><Scale engineID=\"Scale\"><ParamSets><ParamSet>"
    L"<Factor><UseEngine><UseTables><Tables name=\"Net\"></Tables></UseTables>"
    L"<UseDataModifiers><Sum engineID=\"Sum\"></Sum></UseDataModifiers></UseEngine></Factor>"
    L"</ParamSet></ParamSets></Scale></UseDataModifiers>"
    L"<UsePresenter><SelectTables mode=\"first\"><Table name=\"Roads\"></Table></SelectTables>"
    L"<Label engineFile=\"labels.so\" engineID=\"Text\"><ParamSets><ParamSet name=\"Style\">"
    L"<Text><UseExpression>Name &amp; Number</UseExpression></Text></ParamSet></ParamSets>"
    L"</Label></UsePresenter>"
    L"<UsePresenter><UseDataModifiers><Filter engineID=\"F\"></Filter></UseDataModifiers>"
    L"<Legend engineID=\"Legend\"></Legend></UsePresenter></OutputConfig>";

// `create(source)` builds from a text, a document or a node; every form
// must give a tree that writes `text` back. Answers the text form's tree.
template <class Create>
auto expectEveryFormWritesBack(const std::wstring& text, Create create) {
    const auto doc = kaz::xml::Document::create();
    EXPECT_TRUE(doc->loadXML(text));
    EXPECT_EQ(NodePtr<>(create(doc))->toXml(), text);
    EXPECT_EQ(NodePtr<>(create(doc->documentElement()))->toXml(), text);
    auto built = NodePtr<std::remove_pointer_t<decltype(create(&text))>>(create(&text));
    EXPECT_EQ(built->toXml(), text);
    return built;
}

class ChainConfigTest : public LeakCheckedTest {};

TEST_F(ChainConfigTest, InputConfigTextIsACompleteTreeInEveryForm) {
    auto input = expectEveryFormWritesBack(kInputText, [](auto source) {
        return KAZConfigFactory::createInputConfigCfg(source, nullptr);
    });
    const auto* collector = input->getUseDataCollector();
    ASSERT_NE(collector, nullptr);
    EXPECT_EQ(collector->getParent(), input.get());
    EXPECT_EQ(collector->getDataCollector()->getEngineID(), L"Roads");
    EXPECT_EQ(collector->getSampleResults()->getCount(), 2u);
    EXPECT_EQ(input->getUseDataModifiers()->getCount(), 2u);
    const auto* filter = dynamic_cast<IParamCfg*>(
        collector->getDataCollector()->getParamSets()->getParamSet(0u)->getChild(1));
    const auto* expression = dynamic_cast<IUseExpressionCfg*>(filter->getData());
    ASSERT_NE(expression, nullptr);
    EXPECT_EQ(expression->getExpression(), L"Width > 3");
}

TEST_F(ChainConfigTest, OutputConfigTextIsACompleteTreeInEveryForm) {
    auto output = expectEveryFormWritesBack(kOutputText, [](auto source) {
        return KAZConfigFactory::createOutputConfigCfg(source, nullptr);
    });
    ASSERT_EQ(output->getUsePresenterCount(), 2u);
    const IUsePresenterCfg* labels = output->getUsePresenter(0);
    EXPECT_EQ(labels->getPresenter()->getName(), L"Label");
    EXPECT_FALSE(labels->getPresenter()->isValid());
    EXPECT_EQ(labels->getSelectTables()->getAttribute(L"mode"), L"first");
    EXPECT_EQ(output->getUsePresenter(1)->getUseDataModifiers()->getCount(), 1u);
    const auto* factor = dynamic_cast<IParamCfg*>(
        output->getUseDataModifiers()->getChild(0)->getChild(0)->getChild(0)->getChild(0));
    const auto* engine = dynamic_cast<IUseEngineCfg*>(factor->getData());
    ASSERT_NE(engine, nullptr);
    EXPECT_EQ(engine->getDataType(), tableobj::IElement::String);
    EXPECT_EQ(engine->getUseTables()->getParent(), engine);
    EXPECT_EQ(engine->getUseDataModifiers()->getCount(), 1u);
}

TEST_F(ChainConfigTest, SelectingFormsTakeTheFirstElementOfTheirName) {
    const std::wstring text =
        L"<Chain><UsePresenter><A/></UsePresenter><UsePresenter><B/>"
        L"</UsePresenter><UseEngine/><SelectTables k=\"1\"/></Chain>";
    EXPECT_EQ(KAZConfigFactory::createUseExpressionCfg(&text, nullptr), nullptr) << "a Chain";
    NodePtr<> holder(KAZConfigFactory::createUsePresenterCfg(&kInputText, nullptr));
    EXPECT_EQ(holder->toXml(), L"<UsePresenter></UsePresenter>") << "none in the text";

    const auto doc = kaz::xml::Document::create();
    ASSERT_TRUE(doc->loadXML(text));
    NodePtr<IUsePresenterCfg> stage(KAZConfigFactory::createUsePresenterCfg(&text, holder.get()));
    EXPECT_EQ(stage->toXml(), L"<UsePresenter><A></A></UsePresenter>");
    EXPECT_EQ(stage->getParent(), holder.get());
    NodePtr<IUseEngineCfg> engine(
        KAZConfigFactory::createUseEngineCfg(doc->documentElement(), nullptr));
    EXPECT_EQ(engine->toXml(), L"<UseEngine></UseEngine>");
    NodePtr<ISelectTablesCfg> selection(KAZConfigFactory::createSelectTablesCfg(doc, nullptr));
    EXPECT_EQ(selection->toXml(), L"<SelectTables k=\"1\"></SelectTables>");
    const std::wstring malformed = L"<UseEngine><UseTables>";
    NodePtr<IUseEngineCfg> empty(KAZConfigFactory::createUseEngineCfg(&malformed, holder.get()));
    EXPECT_EQ(empty->getChildCount(), 0u);
    EXPECT_EQ(empty->getParent(), holder.get());
}

TEST_F(ChainConfigTest, CopiesAreDeepAndNothingLeaksWhenAllocationsFail) {
    NodePtr<IOutputConfigCfg> output(
        KAZConfigFactory::createOutputConfigCfg(&kOutputText, nullptr));
    NodePtr<IOutputConfigCfg> copy(dynamic_cast<IOutputConfigCfg*>(output->clone()));
    EXPECT_EQ(copy->toXml(), kOutputText);
    EXPECT_NE(copy->getUsePresenter(0), output->getUsePresenter(0));
    EXPECT_EQ(copy->getUsePresenter(0)->getPresenter()->getParent(), copy->getUsePresenter(0));

    NodePtr<IInputConfigCfg> input(KAZConfigFactory::createInputConfigCfg(&kInputText, nullptr));
    expectNothingLeaksUnderAllocationFailures([&] {
        NodePtr<> outputCopy(output->clone());
        NodePtr<> inputCopy(input->clone());
    });
    expectNothingLeaksUnderAllocationFailures(
        [&] { NodePtr<>(KAZConfigFactory::createOutputConfigCfg(&kOutputText, nullptr)); });
}

}  // namespace
