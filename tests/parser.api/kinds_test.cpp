// What every node kind does alike: one suite that each kind passes. A kind
// is listed once, with its factory form; the list must name every node type.

#include <set>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;

using Create = INodeCfg* (*)(const std::wstring* text, INodeCfg* parent);

struct Kind {
    INodeCfg::NodeType type;
    const char* name;
    Create create;  // null text: the empty node of the kind
    // A text of the kind whose node holds every kind of child it takes.
    const wchar_t* full;
    // The empty node's text reads back to it; a collector without a name
    // writes no name, and an empty typed value writes "UseData".
    bool emptyReadsBack = true;
};

#define KAZ_KIND(type, create, ...)                                       \
    Kind {                                                                \
        INodeCfg::type, #type,                                            \
            [](const std::wstring* text, INodeCfg* parent) -> INodeCfg* { \
                return KAZConfigFactory::create(text, parent);            \
            },                                                            \
            __VA_ARGS__                                                   \
    }

INodeCfg* createDouble(const std::wstring* text, INodeCfg* parent) {
    return KAZConfigFactory::createUseDataCfg(IElement::Double, text, parent);
}
INodeCfg* createReference(const std::wstring* text, INodeCfg* parent) {
    return KAZConfigFactory::createUseRefDataCfg(IElement::String, text, parent);
}
INodeCfg* createGeneric(const std::wstring* text, INodeCfg* parent) {
    static const std::wstring empty = L"<XNode/>";  // the generic form gives null for no text
    return KAZConfigFactory::createXNodeCfg(text != nullptr ? text : &empty, parent);
}

const wchar_t* const kParamSets =
    L"<ParamSets><ParamSet name=\"s\"><P><UseDouble>1</UseDouble></P></ParamSet></ParamSets>";

const Kind kKinds[] = {
    KAZ_KIND(Param, createParamCfg, L"<P shift=\"0.5\"><UseDouble>1.5</UseDouble></P>"),
    KAZ_KIND(ExtParam, createExtParamCfg,
             L"<ExtParam name=\"e\"><UseInteger>2</UseInteger></ExtParam>"),
    KAZ_KIND(ExtParams, createExtParamsCfg,
             L"<ExtParams><ExtParam name=\"a\"/><ExtParam name=\"b\"/></ExtParams>"),
    KAZ_KIND(DataCollector, createDataCollectorCfg,
             L"<Roads engineID=\"R\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Roads>", false),
    KAZ_KIND(DataModifier, createDataModifierCfg,
             L"<Sort engineID=\"S\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Sort>"),
    KAZ_KIND(Presenter, createPresenterCfg,
             L"<Label engineID=\"L\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Label>"),
    KAZ_KIND(UseRefPresentationElement, createUseRefPresentationElementCfg,
             L"<UseRefPresentationElement elemID=\"r\" refFileName=\"f.xml\"><ExtParams>"
             L"<ExtParam name=\"a\"/></ExtParams></UseRefPresentationElement>"),
    KAZ_KIND(UseFixedPresentationElement, createUseFixedPresentationElementCfg,
             L"<UseFixedPresentationElement elemID=\"f\"><ExtParams><ExtParam name=\"a\"/>"
             L"</ExtParams><PresentationElement name=\"E\"/></UseFixedPresentationElement>"),
    KAZ_KIND(Features, createFeaturesCfg, L"<Features><A>1</A><B k=\"v\"><c/></B></Features>"),
    KAZ_KIND(Feature, createFeatureCfg, L"<A k=\"v\">x<b/></A>"),
    KAZ_KIND(ParamSets, createParamSetsCfg, kParamSets),
    KAZ_KIND(ParamSet, createParamSetCfg,
             L"<ParamSet name=\"s\"><A><UseDouble>1</UseDouble></A><B/></ParamSet>"),
    KAZ_KIND(UsePresenter, createUsePresenterCfg,
             L"<UsePresenter><SelectTables><Table name=\"T\"/></SelectTables><UseDataModifiers>"
             L"<Sort/></UseDataModifiers><Label engineID=\"L\"/></UsePresenter>"),
    KAZ_KIND(UseDataCollector, createUseDataCollectorCfg,
             L"<UseDataCollector><Roads engineID=\"R\"/><SampleResults name=\"r\">"
             L"<SampleRefResult name=\"a\" refData=\"t\"/></SampleResults></UseDataCollector>"),
    KAZ_KIND(UseDataModifiers, createUseDataModifiersCfg,
             L"<UseDataModifiers><Sort/><Filter/></UseDataModifiers>"),
    KAZ_KIND(XValue, createXValueCfg, L"<XValue name=\"x\"><UseString>s</UseString></XValue>"),
    Kind{INodeCfg::UseData, "UseData", createDouble, L"<UseDouble>2.5</UseDouble>", false},
    KAZ_KIND(UseExpression, createUseExpressionCfg, L"<UseExpression>a &lt; b</UseExpression>"),
    KAZ_KIND(UseEngine, createUseEngineCfg,
             L"<UseEngine><UseDataCollector><Roads/></UseDataCollector><UseDataModifiers><Sort/>"
             L"</UseDataModifiers></UseEngine>"),
    Kind{INodeCfg::UseRefData, "UseRefData", createReference, L"<UseData>Lane.Width</UseData>"},
    KAZ_KIND(SelectTables, createSelectTablesCfg,
             L"<SelectTables mode=\"m\"><Table name=\"T\"/></SelectTables>"),
    KAZ_KIND(InputConfig, createInputConfigCfg,
             L"<InputConfig><UseDataCollector><Roads/></UseDataCollector><UseDataModifiers><Sort/>"
             L"</UseDataModifiers></InputConfig>"),
    KAZ_KIND(OutputConfig, createOutputConfigCfg,
             L"<OutputConfig><UseDataModifiers><Sort/></UseDataModifiers><UsePresenter><Label/>"
             L"</UsePresenter><UsePresenter/></OutputConfig>"),
    KAZ_KIND(PresentationElement, createPresentationElementCfg,
             L"<PresentationElement name=\"E\"><Features><A/></Features><ExtraValuesConfig>"
             L"<XValue name=\"x\"/></ExtraValuesConfig><InputConfig/><OutputConfig/>"
             L"</PresentationElement>"),
    KAZ_KIND(PresentationElements, createPresentationElementsCfg,
             L"<PresentationElements><UseFixedPresentationElement elemID=\"a\"/>"
             L"<UseRefPresentationElement elemID=\"b\"/></PresentationElements>"),
    KAZ_KIND(PresentationGroup, createPresentationGroupCfg,
             L"<PresentationGroup name=\"G\"><Features><A/></Features><ExtraValuesConfig/>"
             L"<PresentationElements><UseFixedPresentationElement elemID=\"a\"/>"
             L"</PresentationElements></PresentationGroup>"),
    Kind{INodeCfg::XNode, "XNode", createGeneric, L"<R a=\"1\">t<b/><c>d</c></R>"},
    KAZ_KIND(ExtraValuesConfig, createExtraValuesConfigCfg,
             L"<ExtraValuesConfig><XValue name=\"a\"/><XValue name=\"b\"/></ExtraValuesConfig>"),
    KAZ_KIND(SampleResults, createSampleResultsCfg,
             L"<SampleResults name=\"r\"><SampleFixedResult name=\"a\"><UseInteger>1</UseInteger>"
             L"</SampleFixedResult><SampleRefResult name=\"b\"/></SampleResults>"),
    KAZ_KIND(SampleFixedResult, createSampleFixedResultCfg,
             L"<SampleFixedResult name=\"a\"><UseInteger>1</UseInteger></SampleFixedResult>"),
    KAZ_KIND(SampleRefResult, createSampleRefResultCfg,
             L"<SampleRefResult name=\"a\" refData=\"t\"/>"),
    KAZ_KIND(UseData, createLanguageStringCfg, L"<UseLanguageString>IDS_A</UseLanguageString>"),
};

class KindsTest : public LeakCheckedTest, public testing::WithParamInterface<Kind> {
protected:
    NodePtr<> full() const {
        const std::wstring text = GetParam().full;
        return NodePtr<>(GetParam().create(&text, nullptr));
    }
};

TEST(KindsListTest, NamesEveryNodeType) {
    std::set<int> types;
    for (const Kind& kind : kKinds) types.insert(kind.type);
    EXPECT_EQ(types.size(), INodeCfg::SampleRefResult + 1u);
}

TEST_P(KindsTest, EmptyNodeWritesATextThatReadsBackToIt) {
    auto holder = NodePtr<>(createGeneric(nullptr, nullptr));
    NodePtr<> empty(GetParam().create(nullptr, holder.get()));
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(empty->getNodeType(), GetParam().type);
    EXPECT_EQ(empty->getParent(), holder.get());
    const std::wstring written = empty->toXml();
    if (!GetParam().emptyReadsBack) return;
    NodePtr<> read(GetParam().create(&written, nullptr));
    ASSERT_NE(read, nullptr) << written;
    EXPECT_EQ(read->toXml(), written);
}

TEST_P(KindsTest, FullNodeReadsWritesAndReadsBackTheSame) {
    auto node = full();
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->getNodeType(), GetParam().type);
    const std::wstring written = node->toXml();
    NodePtr<> again(GetParam().create(&written, nullptr));
    ASSERT_NE(again, nullptr) << written;
    EXPECT_EQ(again->toXml(), written);
}

TEST_P(KindsTest, CloneIsDeepWithChildrenReparentedAndTheSourceParent) {
    auto holder = NodePtr<>(createGeneric(nullptr, nullptr));
    auto node = full();
    node->setParent(holder.get());
    NodePtr<> copy(node->clone());
    EXPECT_EQ(copy->getParent(), holder.get());
    EXPECT_EQ(copy->toXml(), node->toXml());
    ASSERT_EQ(copy->getChildCount(), node->getChildCount());
    for (unsigned int i = 0; i < copy->getChildCount(); ++i) {
        EXPECT_NE(copy->getChild(i), node->getChild(i));
        EXPECT_EQ(copy->getChild(i)->getParent(), copy.get());
    }
    const std::wstring before = node->toXml();
    copy->deleteChildren();
    EXPECT_EQ(node->toXml(), before);
}

TEST_P(KindsTest, GetChildBeyondTheCountNamesTheClassAndMethod) {
    auto node = full();
    const unsigned int count = node->getChildCount();
    const auto chain = thrownChain([&] { node->getChild(count); });
    ASSERT_EQ(chain.size(), 1u);
    EXPECT_EQ(chain[0].kind, IKAZException::OutOfRange);
    EXPECT_EQ(chain[0].message, L"index " + std::to_wstring(count) + L" is out of range");
    const std::wstring method = methodOf(chain[0].context);
    EXPECT_TRUE(method.starts_with(L"kaz::kazparser::") && method.ends_with(L"CfgImpl::getChild"))
        << testing::PrintToString(method);
}

TEST_P(KindsTest, DeleteChildrenEmptiesTheNode) {
    auto node = full();
    const bool hadChildren = node->getChildCount() > 0;
    const std::wstring before = node->toXml();
    node->deleteChildren();
    EXPECT_EQ(node->getChildCount(), 0u);
    if (hadChildren)
        EXPECT_LT(node->toXml().size(), before.size());
    else
        EXPECT_EQ(node->toXml(), before);
}

TEST_P(KindsTest, FailedAllocationsWhileReadingCloningAndWritingFreeEverything) {
    const std::wstring text = GetParam().full;
    const Create create = GetParam().create;
    MessageCapture quiet;
    expectNothingLeaksUnderAllocationFailures([&] {
        NodePtr<> node(create(&text, nullptr));
        if (node == nullptr) return;
        NodePtr<> copy(node->clone());
        (void)copy->toXml();
    });
}

using CollectionsTest = LeakCheckedTest;

TEST_F(CollectionsTest, AnItemReplacedByItselfStaysOwnedByTheCollection) {
    int collections = 0;
    for (const Kind& kind : kKinds) {
        const std::wstring text = kind.full;
        NodePtr<> node(kind.create(&text, nullptr));
        auto* list = dynamic_cast<kaz::kazparser::INodeCfgCollection*>(node.get());
        if (list == nullptr) continue;
        SCOPED_TRACE(kind.name);
        ++collections;
        const std::wstring before = node->toXml();
        INodeCfg* item = list->getChild(0);
        EXPECT_EQ(list->replace(item, 0), nullptr);
        EXPECT_EQ(item->getParent(), node.get());
        EXPECT_EQ(node->toXml(), before);
    }
    EXPECT_EQ(collections, 9);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, KindsTest, testing::ValuesIn(kKinds),
                         [](const testing::TestParamInfo<Kind>& info) {
                             return std::string(info.param.name) +
                                    (info.index + 1 == std::size(kKinds) ? "LanguageString" : "");
                         });

}  // namespace
