// What every node kind does alike, one suite each kind passes (the list of
// kinds names every node type); and the rules kinds share, one table each:
// collections, typed child accessors, written forms and refused look-ups.

#include <functional>
#include <set>
#include <tuple>

#include "kazxml/PlatformError.h"
#include "kazxml/Result.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
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
    // What setChild does with null and with a generic node: raise `refusal`
    // naming this method; null: answer false; empty: take the node.
    const wchar_t* onNull;
    const wchar_t* onForeign;
    // A text of the kind whose node holds every kind of child it takes.
    const wchar_t* full;
    // The empty node's text reads back to it; a collector without a name
    // writes no name, and an empty typed value writes "UseData".
    bool emptyReadsBack = true;
    const wchar_t* refusal = L"Invalid argument";
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

const wchar_t* const kNoUse = L"Do not use this method";
const wchar_t* const kParamSets =
    L"<ParamSets><ParamSet name=\"s\"><P><UseDouble>1</UseDouble></P></ParamSet><Other/>"
    L"</ParamSets>";

const Kind kKinds[] = {
    KAZ_KIND(Param, createParamCfg, L"setChild", L"",
             L"<P shift=\"0.5\" transformCode=\"T\" unit=\"mm\"><UseDouble>1.5</UseDouble></P>"),
    KAZ_KIND(ExtParam, createExtParamCfg, L"setChild", L"setChild",
             L"<ExtParam name=\"e\" desc=\"d\" scaleRelate=\"true\"><UseInteger>2</UseInteger>"
             L"</ExtParam>"),
    KAZ_KIND(ExtParams, createExtParamsCfg, L"append", L"append",
             L"<ExtParams><ExtParam name=\"a\"/><ExtParam name=\"b\"/></ExtParams>"),
    KAZ_KIND(DataCollector, createDataCollectorCfg, L"setParamSets", L"setParamSets",
             L"<Roads engineID=\"R\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Roads>", false),
    KAZ_KIND(DataModifier, createDataModifierCfg, L"setParamSets", L"setParamSets",
             L"<Sort engineID=\"S\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Sort>"),
    KAZ_KIND(Presenter, createPresenterCfg, L"setParamSets", L"setParamSets",
             L"<Label engineID=\"L\"><ParamSets><ParamSet name=\"s\"/></ParamSets></Label>"),
    KAZ_KIND(UseRefPresentationElement, createUseRefPresentationElementCfg, L"setExtParams",
             L"setExtParams",
             L"<UseRefPresentationElement elemID=\"r\" refFileName=\"f.xml\"><ExtParams>"
             L"<ExtParam name=\"a\"/></ExtParams></UseRefPresentationElement>"),
    KAZ_KIND(UseFixedPresentationElement, createUseFixedPresentationElementCfg, L"setChild",
             nullptr,
             L"<UseFixedPresentationElement elemID=\"f\"><ExtParams><ExtParam name=\"a\"/>"
             L"</ExtParams><PresentationElement name=\"E\"/></UseFixedPresentationElement>"),
    KAZ_KIND(Features, createFeaturesCfg, L"append", L"append",
             L"<Features><A>1</A><B k=\"v\"><c/></B></Features>"),
    KAZ_KIND(Feature, createFeatureCfg, nullptr, nullptr, L"<A k=\"v\">x<b/></A>"),
    KAZ_KIND(ParamSets, createParamSetsCfg, L"append", L"append", kParamSets),
    KAZ_KIND(ParamSet, createParamSetCfg, L"append", L"append",
             L"<ParamSet name=\"s\"><A><UseDouble>1</UseDouble></A><B/></ParamSet>"),
    KAZ_KIND(UsePresenter, createUsePresenterCfg, L"setChild", nullptr,
             L"<UsePresenter><SelectTables><Table name=\"T\"/></SelectTables><UseDataModifiers>"
             L"<Sort/></UseDataModifiers><Label engineID=\"L\"/></UsePresenter>"),
    KAZ_KIND(UseDataCollector, createUseDataCollectorCfg, L"setChild", nullptr,
             L"<UseDataCollector><Roads engineID=\"R\"/><SampleResults name=\"r\">"
             L"<SampleRefResult name=\"a\" refData=\"t\"/></SampleResults></UseDataCollector>"),
    KAZ_KIND(UseDataModifiers, createUseDataModifiersCfg, L"append", L"append",
             L"<UseDataModifiers><Sort/><Filter/></UseDataModifiers>"),
    KAZ_KIND(XValue, createXValueCfg, L"setChild", L"setChild",
             L"<XValue name=\"x\" desc=\"d\" scaleRelate=\"true\" systemValue=\"true\">"
             L"<UseString>s</UseString></XValue>"),
    Kind{INodeCfg::UseData, "UseData", readDouble<const std::wstring*>,
         readDouble<IXMLDOMDocument2Ptr>, readDouble<IXMLDOMNodePtr>, L"setChild", L"setChild",
         L"<UseDouble>2.5</UseDouble>", false, kNoUse},
    KAZ_KIND(UseExpression, createUseExpressionCfg, L"setChild", L"setChild",
             L"<UseExpression>a &lt; b</UseExpression>", true, kNoUse),
    KAZ_KIND(UseEngine, createUseEngineCfg, L"setChild", nullptr,
             L"<UseEngine><UseDataCollector><Roads/></UseDataCollector><UseDataModifiers><Sort/>"
             L"</UseDataModifiers></UseEngine>"),
    Kind{INodeCfg::UseRefData, "UseRefData", readReference<const std::wstring*>,
         readReference<IXMLDOMDocument2Ptr>, readReference<IXMLDOMNodePtr>, nullptr, nullptr,
         L"<UseData>Lane.Width</UseData>"},
    KAZ_KIND(SelectTables, createSelectTablesCfg, nullptr, nullptr,
             L"<SelectTables mode=\"m\"><Table name=\"T\"/></SelectTables>"),
    KAZ_KIND(InputConfig, createInputConfigCfg, L"setChild", nullptr,
             L"<InputConfig><UseDataCollector><Roads/></UseDataCollector><UseDataModifiers><Sort/>"
             L"</UseDataModifiers></InputConfig>"),
    KAZ_KIND(OutputConfig, createOutputConfigCfg, nullptr, nullptr,
             L"<OutputConfig><UseDataModifiers><Sort/></UseDataModifiers><UsePresenter><Label/>"
             L"</UsePresenter><UsePresenter/></OutputConfig>"),
    KAZ_KIND(PresentationElement, createPresentationElementCfg, L"setChild", nullptr,
             L"<PresentationElement name=\"E\"><Features><A/></Features><ExtraValuesConfig>"
             L"<XValue name=\"x\"/></ExtraValuesConfig><InputConfig/><OutputConfig/>"
             L"</PresentationElement>"),
    KAZ_KIND(PresentationElements, createPresentationElementsCfg, L"append", L"append",
             L"<PresentationElements><UseFixedPresentationElement elemID=\"a\"/>"
             L"<UseRefPresentationElement elemID=\"b\"/></PresentationElements>"),
    KAZ_KIND(PresentationGroup, createPresentationGroupCfg, L"setChild", nullptr,
             L"<PresentationGroup name=\"G\"><Features><A/></Features><ExtraValuesConfig/>"
             L"<PresentationElements><UseFixedPresentationElement elemID=\"a\"/>"
             L"</PresentationElements></PresentationGroup>"),
    Kind{INodeCfg::XNode, "XNode", createGeneric, nullptr, nullptr, L"append", L"",
         L"<R a=\"1\">t<b/><c>d</c></R>"},
    KAZ_TEXT_KIND(
        ExtraValuesConfig, createExtraValuesConfigCfg, L"append", L"append",
        L"<ExtraValuesConfig><XValue name=\"a\"/><XValue name=\"b\"/></ExtraValuesConfig>"),
    KAZ_TEXT_KIND(
        SampleResults, createSampleResultsCfg, L"append", L"append",
        L"<SampleResults name=\"r\"><SampleFixedResult name=\"a\"><UseInteger>1</UseInteger>"
        L"</SampleFixedResult><SampleRefResult name=\"b\"/></SampleResults>"),
    KAZ_TEXT_KIND(SampleFixedResult, createSampleFixedResultCfg, L"setChild", L"setChild",
                  L"<SampleFixedResult name=\"a\"><UseInteger>1</UseInteger></SampleFixedResult>"),
    KAZ_TEXT_KIND(SampleRefResult, createSampleRefResultCfg, L"setChild", L"setChild",
                  L"<SampleRefResult name=\"a\" refData=\"t\"/>", true, kNoUse),
    KAZ_TEXT_KIND(UseData, createLanguageStringCfg, nullptr, nullptr,
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
        EXPECT_EQ(kindName(kind.type), std::wstring(name.begin(), name.end()));
    }
    EXPECT_EQ(types.size(), INodeCfg::SampleRefResult + 1u);
    EXPECT_EQ(kindName(static_cast<INodeCfg::NodeType>(types.size())), L"");
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

TEST_P(KindsTest, FullNodeParentsItsChildrenAndWritesWhatReadsBackTheSame) {
    auto node = full();
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->getNodeType(), GetParam().type);
    for (unsigned int i = 0; i < node->getChildCount(); ++i)
        EXPECT_EQ(node->getChild(i)->getParent(), node.get());
    const std::wstring written = node->toXml();
    NodePtr<> again(GetParam().create(&written, nullptr));
    ASSERT_NE(again, nullptr) << written;
    EXPECT_EQ(again->toXml(), written);
    std::wstring streamed;
    tableobj::StringXmlWriter out(streamed);
    EXPECT_TRUE(node->writeXml(out));
}

// Keeps every piece; hands out no string to write into.
struct PieceRecorder final : tableobj::IXmlWriter {
    bool write(std::wstring piece) override {
        pieces.push_back(std::move(piece));
        return true;
    }
    std::vector<std::wstring> pieces;
};

TEST_P(KindsTest, PiecesJoinToTheTextWrittenInPlace) {
    auto node = full();
    PieceRecorder recorder;
    EXPECT_TRUE(node->writeXml(recorder));
    std::wstring joined;
    for (const std::wstring& piece : recorder.pieces) joined += piece;
    EXPECT_EQ(joined, node->toXml());
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

std::wstring classOf(const char* kind) {
    const std::string name = kind;
    return std::wstring(name.begin(), name.end()) + L"CfgImpl::";
}

// setChild refuses null and a node of no position of the kind (a generic
// node), raising in the method that refuses it or answering false, and
// changes nothing; the kinds that take any node take it.
TEST_P(KindsTest, SetChildRefusesNullAndNodesOfNoPosition) {
    const Kind& kind = GetParam();
    auto node = full();
    NodePtr<> generic(createGeneric(nullptr, nullptr));
    const std::wstring before = node->toXml();
    for (const auto& [child, method] : {std::pair<INodeCfg*, const wchar_t*>{nullptr, kind.onNull},
                                        {generic.get(), kind.onForeign}}) {
        if (method == nullptr) {
            EXPECT_FALSE(node->setChild(child));
        } else if (*method == L'\0') {
            EXPECT_TRUE(node->setChild(child));
            EXPECT_EQ(generic.release()->getParent(), node.get());
            return;
        } else {
            expectError([&] { node->setChild(child); }, IKAZException::InvalidData, kind.refusal,
                        classOf(kind.name) + method);
        }
    }
    EXPECT_EQ(generic->getParent(), nullptr);
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
    const std::function<void(const Kind&, INodeCfg&, INodeCfgCollection&)>& check) {
    int collections = 0;
    for (const Kind& kind : kKinds) {
        const std::wstring text = kind.full;
        NodePtr<> node(kind.create(&text, nullptr));
        auto* list = dynamic_cast<INodeCfgCollection*>(node.get());
        if (list == nullptr) continue;
        SCOPED_TRACE(kind.name);
        ++collections;
        check(kind, *node, *list);
    }
    EXPECT_EQ(collections, 9);
}

// An item removed is handed back detached; appended, inserted or replaced,
// an item takes its place and becomes a child (an item replaced by itself
// stays); append answers the new count.
TEST_F(CollectionsTest, ItemsRemovedComeBackDetachedAndTakeTheirPlaceAgain) {
    forEachCollection([](const Kind&, INodeCfg& node, INodeCfgCollection& list) {
        const std::wstring before = node.toXml();
        const unsigned int n = list.getCount();
        ASSERT_GE(n, 2u);
        const long live = MemObject::liveCount();
        NodePtr<> last(list.remove(n - 1));
        EXPECT_EQ(last->getParent(), nullptr);
        EXPECT_EQ(list.append(last.get()), n);
        NodePtr<> first(list.remove(0));
        EXPECT_EQ(list.insert(first.get(), 0), 0u);
        NodePtr<> copy(first->clone());
        NodePtr<> replaced(list.replace(copy.get(), 0));
        EXPECT_EQ(replaced.get(), first.release());
        EXPECT_EQ(replaced->getParent(), nullptr);
        for (INodeCfg* item : {last.release(), copy.release()}) EXPECT_EQ(item->getParent(), &node);
        EXPECT_EQ(list.replace(list.getChild(0), 0), nullptr);
        EXPECT_EQ(list.getChild(0)->getParent(), &node);
        EXPECT_EQ(node.toXml(), before);
        replaced.reset();
        EXPECT_EQ(MemObject::liveCount(), live);
    });
}

// Every collection refuses a null item before looking at the position, a
// position past the end (insert too: it never adds at the end) and a node it
// does not hold, naming its class and the operation, and takes nothing.
TEST_F(CollectionsTest, RefusedListCallsNameTheOperationAndChangeNothing) {
    const auto range = IKAZException::OutOfRange;
    const auto invalid = IKAZException::InvalidData;
    NodePtr<> expression(KAZConfigFactory::createUseExpressionCfg(nullptr, nullptr));
    forEachCollection([&](const Kind& kind, INodeCfg& node, INodeCfgCollection& collection) {
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
                {L"insert", [&] { list->insert(nullptr, n + 9); }, invalid, L"Invalid argument"},
                {L"replace", [&] { list->replace(nullptr, n + 9); }, invalid, L"Invalid argument"},
            };
        const std::wstring className = classOf(kind.name);
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

#define KAZ_NEW(create) KAZ_FORM(create, const std::wstring*)

using SharedRulesTest = LeakCheckedTest;

// One typed child position of a fixed-child kind; `call` runs its set,
// replace, release or get accessor.
enum Op { Set, Replace, Release, Get };
struct Accessor {
    Create create;
    Create makeChild;
    const char* kind;
    const char* name;  // what follows set, replace, release and get
    INodeCfg* (*call)(Op, INodeCfg&, INodeCfg*);
    bool hasReplace = true;
    bool replaceAdopts = true;  // replace makes the new child a child of the node
};

#define KAZ_ACCESSORS(Node, Name, IChild, replaceCall)                                  \
    [](Op op, INodeCfg& node, INodeCfg* child) -> INodeCfg* {                           \
        auto& n = dynamic_cast<I##Node##Cfg&>(node);                                    \
        auto* c = dynamic_cast<IChild*>(child);                                         \
        if (op == Set) n.set##Name(c);                                                  \
        if (op == Replace) return replaceCall;                                          \
        return op == Release ? n.release##Name() : op == Get ? n.get##Name() : nullptr; \
    }
// A position named after the kind of its child.
#define KAZ_SLOT(Node, Name, ...)                                                    \
    Accessor {                                                                       \
        KAZ_NEW(create##Node##Cfg), KAZ_NEW(create##Name##Cfg), #Node, #Name,        \
            KAZ_ACCESSORS(Node, Name, I##Name##Cfg, n.replace##Name(c)), __VA_ARGS__ \
    }
#define KAZ_SLOT_WITHOUT_REPLACE(Node, Name)                                  \
    Accessor {                                                                \
        KAZ_NEW(create##Node##Cfg), KAZ_NEW(create##Name##Cfg), #Node, #Name, \
            KAZ_ACCESSORS(Node, Name, I##Name##Cfg, nullptr), false           \
    }
#define KAZ_TABLES(Node, adopts)                                                             \
    Accessor {                                                                               \
        KAZ_NEW(create##Node##Cfg), newTables, #Node, "UseTables",                           \
            KAZ_ACCESSORS(Node, UseTables, IUseDataCfg, n.replaceUseTables(c)), true, adopts \
    }

INodeCfg* newTables(const std::wstring*, INodeCfg* parent) {
    const std::wstring text = L"<UseTables><Tables name=\"Net\"></Tables></UseTables>";
    return KAZConfigFactory::createUseDataCfg(IElement::Tables, &text, parent);
}

const Accessor kAccessors[] = {
    KAZ_SLOT(UsePresenter, SelectTables),
    KAZ_SLOT(UsePresenter, UseDataModifiers),
    KAZ_SLOT(UsePresenter, Presenter),
    KAZ_SLOT(UseDataCollector, DataCollector, true, false),
    KAZ_SLOT(UseDataCollector, SampleResults, true, false),
    KAZ_SLOT(UseEngine, UseDataCollector),
    KAZ_SLOT(UseEngine, UseDataModifiers),
    KAZ_TABLES(UseEngine, false),
    KAZ_SLOT(InputConfig, UseDataCollector),
    KAZ_SLOT(InputConfig, UseDataModifiers),
    KAZ_TABLES(InputConfig, true),
    KAZ_SLOT(OutputConfig, UseDataModifiers, true, false),
    KAZ_SLOT(DataCollector, ParamSets),
    KAZ_SLOT(DataModifier, ParamSets),
    KAZ_SLOT(Presenter, ParamSets),
    KAZ_SLOT(PresentationElement, Features),
    KAZ_SLOT(PresentationElement, ExtraValuesConfig),
    KAZ_SLOT(PresentationElement, InputConfig),
    KAZ_SLOT(PresentationElement, OutputConfig),
    KAZ_SLOT(PresentationGroup, Features),
    KAZ_SLOT(PresentationGroup, ExtraValuesConfig),
    KAZ_SLOT(PresentationGroup, PresentationElements),
    KAZ_SLOT_WITHOUT_REPLACE(UseFixedPresentationElement, ExtParams),
    KAZ_SLOT_WITHOUT_REPLACE(UseFixedPresentationElement, PresentationElement),
    KAZ_SLOT_WITHOUT_REPLACE(UseRefPresentationElement, ExtParams),
};

// Null is refused naming the accessor; set deletes the child it displaces
// but keeps the one it already holds; replace hands the previous child back
// detached (and the child it holds, nothing); release hands it back
// detached; setChild sets a node of the position's kind.
TEST_F(SharedRulesTest, TypedChildAccessorsGiveEachChildOneOwner) {
    for (const Accessor& a : kAccessors) {
        SCOPED_TRACE(std::string(a.kind) + "::" + a.name);
        NodePtr<> node(a.create(nullptr, nullptr));
        const std::string name = a.name;
        const std::wstring className = classOf(a.kind), child(name.begin(), name.end());
        expectError([&] { a.call(Set, *node, nullptr); }, IKAZException::InvalidData,
                    L"Invalid argument", className + L"set" + child);
        if (a.hasReplace)
            expectError([&] { a.call(Replace, *node, nullptr); }, IKAZException::InvalidData,
                        L"Invalid argument", className + L"replace" + child);
        EXPECT_EQ(node->getChildCount(), 0u);

        a.call(Set, *node, a.makeChild(nullptr, nullptr));
        const long live = MemObject::liveCount();
        INodeCfg* held = a.makeChild(nullptr, nullptr);
        a.call(Set, *node, held);
        a.call(Set, *node, held);
        EXPECT_EQ(MemObject::liveCount(), live) << "the displaced child is deleted, the held kept";
        EXPECT_EQ(a.call(Get, *node, nullptr), held);
        EXPECT_EQ(held->getParent(), node.get());
        EXPECT_EQ(node->getChild(node->getChildCount() - 1), held);

        if (a.hasReplace) {
            NodePtr<> holder(createGeneric(nullptr, nullptr));
            INodeCfg* next = a.makeChild(nullptr, holder.get());
            NodePtr<> previous(a.call(Replace, *node, next));
            EXPECT_EQ(previous.get(), held);
            EXPECT_EQ(held->getParent(), nullptr);
            EXPECT_EQ(next->getParent(), a.replaceAdopts ? node.get() : holder.get());
            EXPECT_EQ(a.call(Replace, *node, next), nullptr);
            EXPECT_EQ(a.call(Get, *node, nullptr), next);
            held = next;
        }
        NodePtr<> released(a.call(Release, *node, nullptr));
        EXPECT_EQ(released.get(), held);
        EXPECT_EQ(held->getParent(), nullptr);
        EXPECT_EQ(a.call(Get, *node, nullptr), nullptr);
        EXPECT_EQ(a.call(Release, *node, nullptr), nullptr);

        INodeCfg* viaSetChild = a.makeChild(nullptr, nullptr);
        EXPECT_TRUE(node->setChild(viaSetChild));
        EXPECT_EQ(a.call(Get, *node, nullptr), viaSetChild);
        EXPECT_EQ(viaSetChild->getParent(), node.get());
    }
}

// What each kind writes for what it reads: attributes kept, dropped and in
// their written order, escaping, children in their fixed order, duplicates
// dropped. The forms of kinds read out of a larger text take the first
// element of their name in it, or give the empty node when there is none or
// the text does not load; the others read the root element, and give null
// when it is of another kind.
TEST_F(SharedRulesTest, KindsWriteWhatTheyReadInTheirOwnForm) {
    const std::wstring chain =
        L"<Chain><UsePresenter><A/></UsePresenter><UsePresenter><B/></UsePresenter><x/>"
        L"<ExtParams><ExtParam name=\"a\"/></ExtParams><UseDataCollector><Roads/>"
        L"</UseDataCollector></Chain>";
    const Create build = [](const std::wstring* text, INodeCfg* parent) {
        return KAZConfigFactory::createNodeCfg(text, parent);
    };
    const struct {
        Create create;
        std::wstring text;
        const wchar_t* written;  // null: no node; empty: the text itself
    } cases[] = {
        {KAZ_NEW(createUsePresenterCfg), chain, L"<UsePresenter><A></A></UsePresenter>"},
        {KAZ_NEW(createExtParamsCfg), chain,
         L"<ExtParams><ExtParam name=\"a\"></ExtParam></ExtParams>"},
        {KAZ_NEW(createExtParamCfg), chain, L"<ExtParam name=\"a\"></ExtParam>"},
        {KAZ_NEW(createUseDataCollectorCfg), chain,
         L"<UseDataCollector><Roads></Roads></UseDataCollector>"},
        {KAZ_NEW(createUseDataCollectorCfg), L"<Chain/>", L"<UseDataCollector></UseDataCollector>"},
        {KAZ_NEW(createUseEngineCfg), L"<UseEngine><UseTables>", L"<UseEngine></UseEngine>"},
        {KAZ_NEW(createParamSetCfg), L"<Anything><p/></Anything>", L"<Anything><p></p></Anything>"},
        {KAZ_NEW(createUseExpressionCfg), chain, nullptr},
        {KAZ_NEW(createParamSetsCfg), L"<Other/>", nullptr},
        {KAZ_NEW(createXValueCfg), L"<Param/>", nullptr},
        // The file form: no file name, the empty element.
        {[](const std::wstring*, INodeCfg* parent) -> INodeCfg* {
             return KAZConfigFactory::createPresentationElementCfg(std::wstring(), parent);
         },
         L"", L"<PresentationElement></PresentationElement>"},
        // Attributes read by local name (a namespace declaration is none),
        // written raw in their order; children in their fixed order whatever
        // the document order, one of no position of the kind left out.
        {build,
         L"<PresentationElement xmlns:name=\"urn:n\" xmlns:k=\"urn:k\" other=\"x\" "
         L"descStringID=\"D\" schemaVersion=\"2\" kaz.DwgSysParam.MeasureScale=\"1.23456\" "
         L"desc=\"A &amp; B\" nameStringID=\"N\" k:name=\"Road\"><OutputConfig/><InputConfig/>"
         L"<ExtraValuesConfig/><Features/></PresentationElement>",
         L"<PresentationElement name=\"Road\" nameStringID=\"N\" desc=\"A & B\" descStringID=\"D\" "
         L"schemaVersion=\"2\" kaz.DwgSysParam.MeasureScale=\"1.2346\"><Features></Features>"
         L"<ExtraValuesConfig></ExtraValuesConfig><InputConfig></InputConfig><OutputConfig>"
         L"</OutputConfig></PresentationElement>"},
        {build, L"<PresentationElement kaz.DwgSysParam.MeasureScale=\"abc\"/>",
         L"<PresentationElement kaz.DwgSysParam.MeasureScale=\"0.0000\"></PresentationElement>"},
        {build,
         L"<PresentationGroup xmlns:k=\"urn:k\" k:previewImg=\"p.png\" "
         L"kaz.DwgSysParam.MeasureScale=\"0.5\" schemaVersion=\"3\" descStringID=\"D\" desc=\"d\" "
         L"nameStringID=\"N\" name=\"Road\" other=\"x\"><PresentationElements/><Features/>"
         L"<InputConfig/></PresentationGroup>",
         L"<PresentationGroup name=\"Road\" nameStringID=\"N\" desc=\"d\" descStringID=\"D\" "
         L"schemaVersion=\"3\" kaz.DwgSysParam.MeasureScale=\"0.5000\" previewImg=\"p.png\">"
         L"<Features></Features><PresentationElements></PresentationElements>"
         L"</PresentationGroup>"},
        // The fixed reference reads no file name; "active" is "true" in any case.
        {build,
         L"<UseFixedPresentationElement xmlns:k=\"urn:k\" descStringID=\"D\" desc=\"d\" "
         L"labelStringID=\"L\" k:label=\"A &amp; B\" refMainData=\"M\" active=\"TRUE\" "
         L"refFileName=\"f.xml\" elemID=\"e\" other=\"x\"><PresentationElement/><ExtParams/>"
         L"<Features/></UseFixedPresentationElement>",
         L"<UseFixedPresentationElement elemID=\"e\" active=\"true\" refMainData=\"M\" "
         L"label=\"A & B\" labelStringID=\"L\" desc=\"d\" descStringID=\"D\"><ExtParams>"
         L"</ExtParams><PresentationElement></PresentationElement></UseFixedPresentationElement>"},
        {build,
         L"<UseRefPresentationElement xmlns:k=\"urn:k\" descStringID=\"D\" desc=\"d\" "
         L"labelStringID=\"L\" label=\"A &amp; B\" refMainData=\"M\" active=\"True\" "
         L"k:refFileName=\"f.xml\" elemID=\"e\"/>",
         L"<UseRefPresentationElement elemID=\"e\" refFileName=\"f.xml\" active=\"true\" "
         L"refMainData=\"M\" label=\"A & B\" labelStringID=\"L\" desc=\"d\" "
         L"descStringID=\"D\"></UseRefPresentationElement>"},
        {build, L"<UseRefPresentationElement active=\"yes\"/>",
         L"<UseRefPresentationElement></UseRefPresentationElement>"},
        {build,
         L"<UsePresenter><Label engineID=\"T\"/><UseDataModifiers><Sort/></UseDataModifiers>"
         L"<SelectTables><Table name=\"Roads\"/></SelectTables></UsePresenter>",
         L"<UsePresenter><SelectTables><Table name=\"Roads\"></Table></SelectTables>"
         L"<UseDataModifiers><Sort></Sort></UseDataModifiers><Label engineID=\"T\"></Label>"
         L"</UsePresenter>"},
        // Plug-ins keep their element name and the engine attributes that are
        // not empty.
        {KAZ_NEW(createDataCollectorCfg),
         L"<DataSource name=\"n\" engineid=\"x\" engineFile=\"c:\\e.dll\" engineID=\"E1\"/>",
         L"<DataSource engineFile=\"c:\\e.dll\" engineID=\"E1\"></DataSource>"},
        {KAZ_NEW(createDataModifierCfg), L"<M engineFile=\"\" engineID=\"E2\"/>",
         L"<M engineID=\"E2\"></M>"},
        {KAZ_NEW(createSampleResultsCfg),
         L"<SampleResults name=\"S\"><SampleFixedResult name=\"a\" desc=\"d\" x=\"1\"/>"
         L"</SampleResults>",
         L"<SampleResults name=\"S\"><SampleFixedResult name=\"a\" desc=\"d\"></SampleFixedResult>"
         L"</SampleResults>"},
        // A second data element read into one entry replaces the first.
        {KAZ_NEW(createSampleFixedResultCfg),
         L"<SampleFixedResult><UseDouble>1</UseDouble><UseDouble>2</UseDouble>"
         L"</SampleFixedResult>",
         L"<SampleFixedResult><UseDouble>2</UseDouble></SampleFixedResult>"},
        // A table selection keeps its content as read, escaped.
        {KAZ_NEW(createSelectTablesCfg),
         L"<SelectTables mode=\"a &lt; b\" q=\"&quot;x&quot;&#10;\">\n  <Table name=\"R&amp;D\"/>"
         L"<![CDATA[w < 3]]><Column><UseDouble>1</UseDouble></Column></SelectTables>",
         L"<SelectTables mode=\"a &lt; b\" q=\"&quot;x&quot;&#10;\">\n  "
         L"<Table name=\"R&amp;D\"></Table>w &lt; 3<Column><UseDouble>1</UseDouble></Column>"
         L"</SelectTables>"},
        {KAZ_NEW(createUseExpressionCfg),
         L"<UseExpression>Width &gt; 3 <![CDATA[&& Lanes < 4]]> &#x41;</UseExpression>",
         L"<UseExpression>Width &gt; 3 &amp;&amp; Lanes &lt; 4 A</UseExpression>"},
        // Sets and parameters of any element name, every written attribute.
        {KAZ_NEW(createParamSetsCfg),
         L"<ParamSets><Options name=\"Road\" nameStringID=\"N1\" desc=\"Roads\" "
         L"descStringID=\"D1\" group=\"g\"><Width shift=\"0.5000\" transformCode=\"T\" "
         L"scaleRelate=\"true\" shiftScaleRelate=\"true\" systemValue=\"true\" unit=\"mm\" "
         L"step=\"1\"><UseDouble>2.5</UseDouble></Width><Param><UseString>a b</UseString></Param>"
         L"<Lanes><UseInteger>3</UseInteger></Lanes><Visible><UseBoolean>true</UseBoolean>"
         L"</Visible></Options><ParamSet><Empty></Empty></ParamSet></ParamSets>",
         L""},
        // A shift is written above 0.0001 only, with four decimals; flags are
        // "true" in any case; a parameter does not write its description.
        {KAZ_NEW(createParamCfg), L"<P shift=\"-0.0001\"/>", L"<P></P>"},
        {KAZ_NEW(createParamCfg), L"<P shift=\"0.00011\"/>", L"<P shift=\"0.0001\"></P>"},
        {KAZ_NEW(createParamCfg),
         L"<Width a=\"1\" shift=\" -0.25x\" desc=\"wide\" transformCode=\"T\" "
         L"scaleRelate=\"TRUE\" shiftScaleRelate=\"yes\" systemValue=\"1\"/>",
         L"<Width shift=\"-0.2500\" transformCode=\"T\" scaleRelate=\"true\" a=\"1\"></Width>"},
        {KAZ_NEW(createXValueCfg),
         L"<XValue name=\"n\" desc=\"d\" scaleRelate=\"True\" systemValue=\"tRuE\" other=\"x\"/>",
         L"<XValue name=\"n\" desc=\"d\" scaleRelate=\"true\" systemValue=\"true\"></XValue>"},
        // A second item of a name is dropped.
        {KAZ_NEW(createExtParamsCfg),
         L"<ExtParams><ExtParam name=\"w\"/><ExtParam name=\"w\"/></ExtParams>",
         L"<ExtParams><ExtParam name=\"w\"></ExtParam></ExtParams>"},
        {KAZ_NEW(createFeaturesCfg), L"<Features><A>first</A><A>second</A><B/></Features>",
         L"<Features><A>first</A><B></B></Features>"},
        // Inside a value a table element is read.
        {build, L"<H><UseColumn><Column datatype=\"integer\"/></UseColumn></H>",
         L"<H><UseColumn><Column datatype=\"integer\"></Column></UseColumn></H>"},
        // Content using a prefix declared outside it reads as it stands.
        {build, L"<H xmlns:p=\"u\"><UseString><p:b k=\"1\"/></UseString></H>",
         L"<H xmlns:p=\"u\"><UseString>&lt;p:b k=\"1\"&gt;&lt;/p:b&gt;</UseString></H>"},
        // Elements of no kind become generic nodes, and every element in the
        // generic form; indentation is no content.
        {build, L"<Root a=\"1\">\n  <Child b=\"2\"><Leaf/></Child>\n  <Other/>\n</Root>",
         L"<Root a=\"1\"><Child b=\"2\"><Leaf></Leaf></Child><Other></Other></Root>"},
        {createGeneric,
         L"<ParamSets q='say \"hi\" &amp; it&apos;s'>\n  <ParamSet>a &lt; b<![CDATA[<y>]]>&amp;"
         L"</ParamSet>\n</ParamSets>",
         L"<ParamSets q=\"say &quot;hi&quot; &amp; it's\"><ParamSet>a &lt; b&lt;y&gt;&amp;"
         L"</ParamSet></ParamSets>"},
    };
    NodePtr<> holder(createGeneric(nullptr, nullptr));
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "case " << &c - cases);
        NodePtr<> node(c.create(&c.text, holder.get()));
        if (c.written == nullptr) {
            EXPECT_EQ(node, nullptr);
            continue;
        }
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->toXml(), *c.written != L'\0' ? c.written : c.text);
        EXPECT_EQ(node->getParent(), holder.get());
    }
}

// A call on the node of `kind` read from `text` that must raise the
// out-of-range error ("Invalid argument" for a null argument) naming
// `method`.
struct Refusal {
    Create create;
    const wchar_t* text;
    const char* kind;
    void (*call)(INodeCfg&);
    std::wstring message;
    const wchar_t* method;
};
#define KAZ_REFUSAL(Node, text, call, ...)                                    \
    Refusal {                                                                 \
        KAZ_NEW(create##Node##Cfg), text, #Node,                              \
            [](INodeCfg& node) {                                              \
                [[maybe_unused]] auto& n = dynamic_cast<I##Node##Cfg&>(node); \
                call;                                                         \
            },                                                                \
            __VA_ARGS__                                                       \
    }

// Look-ups of a name or a position a node does not hold name the key and
// the method, and change nothing.
TEST_F(SharedRulesTest, RefusedLookupsNameTheKeyAndTheMethod) {
    const std::wstring noZ = L"z is not the name of child object";
    const std::wstring one = L"index 1 is out of range";
    const std::wstring invalid = L"Invalid argument";
    const wchar_t* const set = L"<S e=\"1\"><a/></S>";
    const wchar_t* const output = L"<OutputConfig><UsePresenter/></OutputConfig>";
    const Refusal cases[] = {
        KAZ_REFUSAL(ExtParams, L"<ExtParams/>", n[L"z"], noZ, L"operator []"),
        KAZ_REFUSAL(Features, L"<Features><A/></Features>", n[L"z"], noZ, L"operator []"),
        KAZ_REFUSAL(SampleResults, L"<SampleResults/>", n[L"z"], noZ, L"operator []"),
        KAZ_REFUSAL(UseDataModifiers, L"<UseDataModifiers/>", n[L"z"], noZ, L"operator []"),
        // Values are found by their names, not their tags.
        KAZ_REFUSAL(
            ExtraValuesConfig, L"<ExtraValuesConfig><XValue name=\"w\"/></ExtraValuesConfig>",
            n.getXValue(L"XValue"), L"XValue is not the name of child object", L"getXValue"),
        // Sets are found by element name, never by their name attribute.
        KAZ_REFUSAL(ParamSets, L"<ParamSets><A/><B name=\"Nm\"/></ParamSets>", n.getParamSet(L"Nm"),
                    L"index Nm is out of range", L"getParamSet"),
        KAZ_REFUSAL(ParamSet, set, n.getParam(L"z"), noZ, L"getParam"),
        KAZ_REFUSAL(ParamSet, set, int v = 0; n.getParamValue(L"z", v), noZ, L"getParam"),
        KAZ_REFUSAL(ParamSet, set,
                    NodePtr<IParamCfg> item(KAZConfigFactory::createParamCfg(nullptr, nullptr));
                    n.replaceParam(item.get(), L"z"), noZ, L"replaceParam"),
        KAZ_REFUSAL(ParamSet, set, n.getAttribute(1u), one, L"getAttribute"),
        KAZ_REFUSAL(ParamSet, set, n.setAttribute(1u, L"v"), one, L"setAttribute"),
        KAZ_REFUSAL(ParamSet, set, n.getAttribute(L"z"), noZ, L"getAttribute"),
        KAZ_REFUSAL(Param, L"<Param a=\"1\"/>", n.getAttribute(1u), one, L"getAttribute"),
        KAZ_REFUSAL(Param, L"<Param a=\"1\"/>", n.setAttribute(1u, L"v"), one, L"setAttribute"),
        KAZ_REFUSAL(Param, L"<Param a=\"1\"/>", n.getAttribute(L"z"), noZ, L"getAttribute"),
        KAZ_REFUSAL(XNode, L"<r a=\"1\"><y/></r>", n.getAttribute(L"z"), noZ, L"getAttribute"),
        KAZ_REFUSAL(XNode, L"<r a=\"1\"><y/></r>", n.setAttribute(1u, L"v"), one, L"setAttribute"),
        KAZ_REFUSAL(XNode, L"<r a=\"1\"><y/></r>", double v = 0;
                    n.getChildValue(L"z", v), noZ, L"getChildValue"),
        KAZ_REFUSAL(SelectTables, L"<SelectTables a=\"1\"/>", n.getAttribute(L"z"), noZ,
                    L"getAttribute"),
        // The argument is tested before the index.
        KAZ_REFUSAL(OutputConfig, output, n.getUsePresenter(1u), one, L"getUsePresenter"),
        KAZ_REFUSAL(OutputConfig, output, n.removeUsePresenter(1), one, L"removeUsePresenter"),
        KAZ_REFUSAL(OutputConfig, output,
                    NodePtr<IUsePresenterCfg> stage(
                        KAZConfigFactory::createUsePresenterCfg(nullptr, nullptr));
                    n.insertUsePresenter(stage.get(), 1), one, L"insertUsePresenter"),
        KAZ_REFUSAL(OutputConfig, output, n.insertUsePresenter(nullptr, 5), invalid,
                    L"insertUsePresenter"),
        KAZ_REFUSAL(OutputConfig, output, n.setUsePresenter(nullptr, 5), invalid,
                    L"setUsePresenter"),
        KAZ_REFUSAL(OutputConfig, output, n.replaceUsePresenter(nullptr, 5), invalid,
                    L"replaceUsePresenter"),
    };
    for (const Refusal& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.method)) + " of " + c.kind);
        const std::wstring text = c.text;
        NodePtr<> node(c.create(&text, nullptr));
        const std::wstring before = node->toXml();
        expectError([&] { c.call(*node); },
                    c.message == invalid ? IKAZException::InvalidData : IKAZException::OutOfRange,
                    c.message, classOf(c.kind) + c.method);
        EXPECT_EQ(node->toXml(), before);
    }
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
