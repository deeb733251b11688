// Engine references, input configurations and expressions: the two
// alternative inputs, refusals, expression text, and the chain kinds' forms
// that select their element from a larger text.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IInputConfigCfg;
using kaz::kazparser::IUseDataCfg;
using kaz::kazparser::IUseDataCollectorCfg;
using kaz::kazparser::IUseDataModifiersCfg;
using kaz::kazparser::IUseEngineCfg;
using kaz::kazparser::IUseExpressionCfg;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;

const std::wstring* const kNoText = nullptr;

IUseDataCfg* newTables(INodeCfg* parent = nullptr) {
    const std::wstring text = L"<UseTables><Tables name=\"Net\"></Tables></UseTables>";
    return KAZConfigFactory::createUseDataCfg(IElement::Tables, &text, parent);
}

IUseDataCollectorCfg* newCollector() {
    const std::wstring text = L"<UseDataCollector><Roads engineID=\"R\"/></UseDataCollector>";
    return KAZConfigFactory::createUseDataCollectorCfg(&text, nullptr);
}

IUseDataModifiersCfg* newModifiers() {
    return KAZConfigFactory::createUseDataModifiersCfg(kNoText, nullptr);
}

// The two kinds that hold the alternative inputs, and where they differ.
struct EngineKind {
    using Node = IUseEngineCfg;
    static Node* make() { return KAZConfigFactory::createUseEngineCfg(kNoText, nullptr); }
    static constexpr bool kAdoptsReplacedTables = false;
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseEngineCfgImpl";
};
struct InputKind {
    using Node = IInputConfigCfg;
    static Node* make() { return KAZConfigFactory::createInputConfigCfg(kNoText, nullptr); }
    static constexpr bool kAdoptsReplacedTables = true;
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::InputConfigCfgImpl";
};

template <class Kind>
class ChainInputTest : public LeakCheckedTest {};
using ChainInputKinds = ::testing::Types<EngineKind, InputKind>;
TYPED_TEST_SUITE(ChainInputTest, ChainInputKinds);

TYPED_TEST(ChainInputTest, SettersKeepOneInputReplaceKeepsBothAndTablesWin) {
    NodePtr<typename TypeParam::Node> node(TypeParam::make());
    node->setUseDataModifiers(newModifiers());
    node->setUseDataCollector(newCollector());
    IUseDataCfg* tables = newTables();
    const long withCollector = MemObject::liveCount();
    node->setUseTables(tables);
    EXPECT_EQ(MemObject::liveCount(), withCollector - 2) << "the reference and its collector";
    EXPECT_EQ(node->getChild(0), tables);

    IUseDataCollectorCfg* collector = newCollector();
    EXPECT_EQ(node->replaceUseDataCollector(collector), nullptr);
    EXPECT_EQ(collector->getParent(), node.get());
    EXPECT_EQ(node->getChildCount(), 2u);
    EXPECT_EQ(node->getChild(0), tables);
    EXPECT_EQ(node->toXml().find(L"Roads"), std::wstring::npos) << "the collector is hidden";

    NodePtr<> holder(newModifiers());
    IUseDataCfg* other = newTables(holder.get());
    NodePtr<IUseDataCfg> previous(node->replaceUseTables(other));
    EXPECT_EQ(previous.get(), tables);
    EXPECT_EQ(tables->getParent(), nullptr);
    EXPECT_EQ(other->getParent(), TypeParam::kAdoptsReplacedTables ? node.get() : holder.get());

    NodePtr<IUseDataCfg> released(node->releaseUseTables());
    EXPECT_EQ(node->getChild(0), collector) << "without tables the collector is the input";
    node->setUseDataCollector(collector);  // the held child is kept, not deleted
    EXPECT_EQ(node->getUseDataCollector(), collector);

    const std::wstring doubleText = L"<UseDouble>2</UseDouble>";
    NodePtr<> value(KAZConfigFactory::createUseDataCfg(IElement::Double, &doubleText, nullptr));
    EXPECT_FALSE(node->setChild(value.get())) << "only a data value named UseTables is taken";
    EXPECT_TRUE(node->setChild(newTables()));
}

TYPED_TEST(ChainInputTest, RefusalsNameTheOperationAndChangeNothing) {
    NodePtr<typename TypeParam::Node> node(TypeParam::make());
    node->setUseDataCollector(newCollector());
    const std::wstring before = node->toXml();
    using Call = std::function<void(typename TypeParam::Node&)>;
    const std::wstring invalid = L"Invalid argument";
    const std::vector<std::tuple<std::wstring, std::wstring, Call>> cases = {
        {L"setUseTables", invalid, [](auto& n) { n.setUseTables(nullptr); }},
        {L"setUseDataCollector", invalid, [](auto& n) { n.setUseDataCollector(nullptr); }},
        {L"setUseDataModifiers", invalid, [](auto& n) { n.setUseDataModifiers(nullptr); }},
        {L"replaceUseTables", invalid, [](auto& n) { n.replaceUseTables(nullptr); }},
        {L"replaceUseDataCollector", invalid, [](auto& n) { n.replaceUseDataCollector(nullptr); }},
        {L"replaceUseDataModifiers", invalid, [](auto& n) { n.replaceUseDataModifiers(nullptr); }},
        {L"setChild", invalid, [](auto& n) { n.setChild(nullptr); }},
    };
    for (const auto& [method, message, call] : cases) {
        const auto chain = thrownChain([&, &call = call] { call(*node); });
        ASSERT_EQ(chain.size(), 1u) << testing::PrintToString(method);
        EXPECT_EQ(chain[0].message, message);
        EXPECT_EQ(methodOf(chain[0].context), std::wstring(TypeParam::kClassName) + L"::" + method);
    }
    EXPECT_EQ(node->toXml(), before);
}

class UseExpressionTest : public LeakCheckedTest {};

TEST_F(UseExpressionTest, TextInPiecesIsWholeAndWrittenEscaped) {
    const std::wstring text =
        L"<UseExpression>Width &gt; 3 <![CDATA[&& Lanes < 4]]> &#x41;</UseExpression>";
    NodePtr<IUseExpressionCfg> expression(KAZConfigFactory::createUseExpressionCfg(&text, nullptr));
    EXPECT_EQ(expression->getExpression(), L"Width > 3 && Lanes < 4 A");
    const std::wstring written =
        L"<UseExpression>Width &gt; 3 &amp;&amp; Lanes &lt; 4 A</UseExpression>";
    EXPECT_EQ(expression->toXml(), written);
    EXPECT_EQ(expression->getDataType(), IElement::String);
}

TEST_F(UseExpressionTest, TakesNoChildren) {
    NodePtr<IUseExpressionCfg> expression(
        KAZConfigFactory::createUseExpressionCfg(kNoText, nullptr));
    expectError([&] { expression->setChild(expression.get()); }, IKAZException::InvalidData,
                L"Do not use this method", L"UseExpressionCfgImpl::setChild");
}

// The chain kinds' forms build the first element of their name in the text;
// the expression form takes the root element only.
using ChainFormsTest = LeakCheckedTest;

TEST_F(ChainFormsTest, KindsReadTheFirstElementOfTheirName) {
    const std::wstring text =
        L"<Chain><UsePresenter><A/></UsePresenter><UsePresenter><B/>"
        L"</UsePresenter><UseEngine/><SelectTables k=\"1\"/></Chain>";
    EXPECT_EQ(KAZConfigFactory::createUseExpressionCfg(&text, nullptr), nullptr) << "a Chain";
    const std::wstring none = L"<InputConfig/>";
    NodePtr<> holder(KAZConfigFactory::createUsePresenterCfg(&none, nullptr));
    EXPECT_EQ(holder->toXml(), L"<UsePresenter></UsePresenter>") << "none in the text";

    NodePtr<> stage(KAZConfigFactory::createUsePresenterCfg(&text, holder.get()));
    EXPECT_EQ(stage->toXml(), L"<UsePresenter><A></A></UsePresenter>");
    EXPECT_EQ(stage->getParent(), holder.get());
    NodePtr<IUseEngineCfg> engine(KAZConfigFactory::createUseEngineCfg(&text, nullptr));
    EXPECT_EQ(engine->toXml(), L"<UseEngine></UseEngine>");
    EXPECT_EQ(engine->getDataType(), IElement::String);
    NodePtr<> selection(KAZConfigFactory::createSelectTablesCfg(&text, nullptr));
    EXPECT_EQ(selection->toXml(), L"<SelectTables k=\"1\"></SelectTables>");
    const std::wstring malformed = L"<UseEngine><UseTables>";
    NodePtr<> empty(KAZConfigFactory::createUseEngineCfg(&malformed, holder.get()));
    EXPECT_EQ(empty->getChildCount(), 0u);
    EXPECT_EQ(empty->getParent(), holder.get());
}

}  // namespace
