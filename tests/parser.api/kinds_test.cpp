// What every node kind does alike: one suite that each kind passes. A kind
// is listed once, with its factory forms; the list must name every node type.

#include <functional>
#include <set>
#include <tuple>

#include "kazxml/PlatformError.h"
#include "kazxml/Result.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;

using kaz::xml::IXMLDOMDocument2Ptr;
using kaz::xml::IXMLDOMNodePtr;
using Create = INodeCfg* (*)(const std::wstring* text, INodeCfg* parent);
using FromDocument = INodeCfg* (*)(IXMLDOMDocument2Ptr doc, INodeCfg* parent);
using FromNode = INodeCfg* (*)(IXMLDOMNodePtr node, INodeCfg* parent);

struct Kind {
    INodeCfg::NodeType type;
    const char* name;
    Create create;  // null text: the empty node of the kind
    // The document and node forms; null where the kind has the text form only.
    FromDocument fromDocument;
    FromNode fromNode;
    // A text of the kind whose node holds every kind of child it takes.
    const wchar_t* full;
    // The empty node's text reads back to it; a collector without a name
    // writes no name, and an empty typed value writes "UseData".
    bool emptyReadsBack = true;
};

#define KAZ_FORM(create, Source)                         \
    [](Source source, INodeCfg* parent) -> INodeCfg* {   \
        return KAZConfigFactory::create(source, parent); \
    }
#define KAZ_KIND(type, create, ...)                                                              \
    Kind {                                                                                       \
        INodeCfg::type, #type, KAZ_FORM(create, const std::wstring*),                            \
            KAZ_FORM(create, IXMLDOMDocument2Ptr), KAZ_FORM(create, IXMLDOMNodePtr), __VA_ARGS__ \
    }
#define KAZ_TEXT_KIND(type, create, ...)                                                \
    Kind {                                                                              \
        INodeCfg::type, #type, KAZ_FORM(create, const std::wstring*), nullptr, nullptr, \
            __VA_ARGS__                                                                 \
    }

template <class Source>
INodeCfg* readDouble(Source source, INodeCfg* parent) {
    return KAZConfigFactory::createUseDataCfg(IElement::Double, source, parent);
}
template <class Source>
INodeCfg* readReference(Source source, INodeCfg* parent) {
    return KAZConfigFactory::createUseRefDataCfg(IElement::String, source, parent);
}
INodeCfg* createGeneric(const std::wstring* text, INodeCfg* parent) {
    static const std::wstring empty = L"<XNode/>";  // the generic form gives null for none
    return KAZConfigFactory::createXNodeCfg(text != nullptr && !text->empty() ? text : &empty,
                                            parent);
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
    Kind{INodeCfg::UseData, "UseData", readDouble<const std::wstring*>,
         readDouble<IXMLDOMDocument2Ptr>, readDouble<IXMLDOMNodePtr>, L"<UseDouble>2.5</UseDouble>",
         false},
    KAZ_KIND(UseExpression, createUseExpressionCfg, L"<UseExpression>a &lt; b</UseExpression>"),
    KAZ_KIND(UseEngine, createUseEngineCfg,
             L"<UseEngine><UseDataCollector><Roads/></UseDataCollector><UseDataModifiers><Sort/>"
             L"</UseDataModifiers></UseEngine>"),
    Kind{INodeCfg::UseRefData, "UseRefData", readReference<const std::wstring*>,
         readReference<IXMLDOMDocument2Ptr>, readReference<IXMLDOMNodePtr>,
         L"<UseData>Lane.Width</UseData>"},
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
    Kind{INodeCfg::XNode, "XNode", createGeneric, nullptr, nullptr,
         L"<R a=\"1\">t<b/><c>d</c></R>"},
    KAZ_TEXT_KIND(
        ExtraValuesConfig, createExtraValuesConfigCfg,
        L"<ExtraValuesConfig><XValue name=\"a\"/><XValue name=\"b\"/></ExtraValuesConfig>"),
    KAZ_TEXT_KIND(
        SampleResults, createSampleResultsCfg,
        L"<SampleResults name=\"r\"><SampleFixedResult name=\"a\"><UseInteger>1</UseInteger>"
        L"</SampleFixedResult><SampleRefResult name=\"b\"/></SampleResults>"),
    KAZ_TEXT_KIND(SampleFixedResult, createSampleFixedResultCfg,
                  L"<SampleFixedResult name=\"a\"><UseInteger>1</UseInteger></SampleFixedResult>"),
    KAZ_TEXT_KIND(SampleRefResult, createSampleRefResultCfg,
                  L"<SampleRefResult name=\"a\" refData=\"t\"/>"),
    KAZ_TEXT_KIND(UseData, createLanguageStringCfg,
                  L"<UseLanguageString>IDS_A</UseLanguageString>"),
};

class KindsTest : public LeakCheckedTest, public testing::WithParamInterface<Kind> {
protected:
    NodePtr<> full() const {
        const std::wstring text = GetParam().full;
        return NodePtr<>(GetParam().create(&text, nullptr));
    }
};

TEST(KindsListTest, NamesEveryNodeTypeUnderItsKindName) {
    std::set<int> types;
    for (const Kind& kind : kKinds) {
        types.insert(kind.type);
        const std::string name = kind.name;
        EXPECT_EQ(kaz::kazparser::kindName(kind.type), std::wstring(name.begin(), name.end()));
    }
    EXPECT_EQ(types.size(), INodeCfg::SampleRefResult + 1u);
    EXPECT_EQ(kaz::kazparser::kindName(static_cast<INodeCfg::NodeType>(types.size())), L"");
}

TEST_P(KindsTest, NoOrEmptyTextGivesAnEmptyNodeThatReadsBack) {
    auto holder = NodePtr<>(createGeneric(nullptr, nullptr));
    const std::wstring none;
    for (const std::wstring* text : {static_cast<const std::wstring*>(nullptr), &none}) {
        NodePtr<> empty(GetParam().create(text, holder.get()));
        ASSERT_NE(empty, nullptr);
        EXPECT_EQ(empty->getNodeType(), GetParam().type);
        EXPECT_EQ(empty->getParent(), holder.get());
        const std::wstring written = empty->toXml();
        if (!GetParam().emptyReadsBack) continue;
        NodePtr<> read(GetParam().create(&written, nullptr));
        ASSERT_NE(read, nullptr) << written;
        EXPECT_EQ(read->toXml(), written);
    }
}

TEST_P(KindsTest, FullNodeReadsWritesAndReadsBackTheSame) {
    auto node = full();
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->getNodeType(), GetParam().type);
    const std::wstring written = node->toXml();
    NodePtr<> again(GetParam().create(&written, nullptr));
    ASSERT_NE(again, nullptr) << written;
    EXPECT_EQ(again->toXml(), written);
    std::wstring streamed;
    tableobj::StringXmlWriter out(streamed);
    EXPECT_TRUE(node->writeXml(out));
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

// Calls `check` with the full node of every collection kind.
void forEachCollection(
    const std::function<void(const Kind&, INodeCfg&, kaz::kazparser::INodeCfgCollection&)>& check) {
    int collections = 0;
    for (const Kind& kind : kKinds) {
        const std::wstring text = kind.full;
        NodePtr<> node(kind.create(&text, nullptr));
        auto* list = dynamic_cast<kaz::kazparser::INodeCfgCollection*>(node.get());
        if (list == nullptr) continue;
        SCOPED_TRACE(kind.name);
        ++collections;
        check(kind, *node, *list);
    }
    EXPECT_EQ(collections, 9);
}

TEST_F(CollectionsTest, AnItemReplacedByItselfStaysOwnedByTheCollection) {
    forEachCollection([](const Kind&, INodeCfg& node, kaz::kazparser::INodeCfgCollection& list) {
        const std::wstring before = node.toXml();
        INodeCfg* item = list.getChild(0);
        EXPECT_EQ(list.replace(item, 0), nullptr);
        EXPECT_EQ(item->getParent(), &node);
        EXPECT_EQ(node.toXml(), before);
    });
}

// Every collection refuses a null item before looking at the position, a
// position past the end (insert too: it never adds at the end) and a node it
// does not hold, naming its class and the operation, and takes nothing.
TEST_F(CollectionsTest, RefusedListCallsNameTheOperationAndChangeNothing) {
    const auto range = IKAZException::OutOfRange;
    const auto invalid = IKAZException::InvalidData;
    NodePtr<> expression(KAZConfigFactory::createUseExpressionCfg(nullptr, nullptr));
    forEachCollection([&](const Kind& kind, INodeCfg& node,
                          kaz::kazparser::INodeCfgCollection& collection) {
        auto* list = &collection;
        NodePtr<> item(list->getChild(0)->clone());
        item->setParent(nullptr);
        const unsigned int n = list->getCount();
        const std::wstring past = L"index " + std::to_wstring(n) + L" is out of range";
        // The generic node holds any node.
        INodeCfg* foreign = kind.type == INodeCfg::XNode ? nullptr : expression.get();
        const std::tuple<const wchar_t*, std::function<void()>, IKAZException::Kind, std::wstring>
            cases[] = {
                {L"getChild", [&] { (*list)[n]; }, range, past},
                {L"insert", [&] { list->insert(item.get(), n); }, range, past},
                {L"replace", [&] { list->replace(item.get(), n); }, range, past},
                {L"remove", [&] { list->remove(n); }, range, past},
                {L"append", [&] { list->append(foreign); }, invalid, L"Invalid argument"},
                {L"append", [&] { list->setChild(foreign); }, invalid, L"Invalid argument"},
                {L"insert", [&] { list->insert(nullptr, n + 9); }, invalid, L"Invalid argument"},
                {L"replace", [&] { list->replace(nullptr, n + 9); }, invalid, L"Invalid argument"},
            };
        const std::string name = kind.name;
        const std::wstring className = std::wstring(name.begin(), name.end()) + L"CfgImpl::";
        const std::wstring before = node.toXml();
        for (const auto& [method, call, error, message] : cases) {
            expectError(call, error, message, className + method);
            EXPECT_EQ(node.toXml(), before);
        }
        EXPECT_EQ(item->getParent(), nullptr);
        list->deleteChildren();  // an empty list has no position to insert at
        expectError([&] { list->insert(item.get(), 0); }, range, L"index 0 is out of range",
                    className + L"insert");
    });
}

INSTANTIATE_TEST_SUITE_P(EveryKind, KindsTest, testing::ValuesIn(kKinds),
                         [](const testing::TestParamInfo<Kind>& info) {
                             return std::string(info.param.name) +
                                    (info.index + 1 == std::size(kKinds) ? "LanguageString" : "");
                         });

using FormsTest = KindsTest;

// The document and node forms read what the text form reads; a null node
// raises E_POINTER.
TEST_P(FormsTest, DocumentAndNodeFormsReadWhatTheTextFormReads) {
    const std::wstring expected = full()->toXml();
    const auto doc = kaz::xml::Document::create();
    ASSERT_TRUE(doc->loadXML(GetParam().full));
    auto holder = NodePtr<>(createGeneric(nullptr, nullptr));
    NodePtr<> fromDocument(GetParam().fromDocument(doc, holder.get()));
    NodePtr<> fromNode(GetParam().fromNode(doc->documentElement(), holder.get()));
    for (const INodeCfg* node : {fromDocument.get(), fromNode.get()}) {
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->toXml(), expected);
        EXPECT_EQ(node->getParent(), holder.get());
    }
    try {
        GetParam().fromNode(IXMLDOMNodePtr(), nullptr);
        ADD_FAILURE() << "a null node was read";
    } catch (const kaz::xml::PlatformError& error) {
        EXPECT_EQ(error.code(), kaz::xml::E_POINTER);
    }
}

std::vector<Kind> kindsWithForms() {
    std::vector<Kind> kinds;
    for (const Kind& kind : kKinds)
        if (kind.fromDocument != nullptr) kinds.push_back(kind);
    return kinds;
}

INSTANTIATE_TEST_SUITE_P(EveryKindWithForms, FormsTest, testing::ValuesIn(kindsWithForms()),
                         [](const testing::TestParamInfo<Kind>& info) { return info.param.name; });

}  // namespace
