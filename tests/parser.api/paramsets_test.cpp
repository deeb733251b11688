// Parameter-set lists and parameter sets: errors, typed operations, look-ups
// by name, attributes, values, copying, writing and the factory forms.

#include <functional>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IParamCfg;
using kaz::kazparser::IParamSetCfg;
using kaz::kazparser::IParamSetsCfg;
using kaz::kazparser::KAZConfigFactory;
using kaz::kazparser::kNoPosition;

NodePtr<IParamSetsCfg> readSets(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<IParamSetsCfg>(KAZConfigFactory::createParamSetsCfg(&text, parent));
}

NodePtr<IParamSetCfg> readSet(const std::wstring& text) {
    return NodePtr<IParamSetCfg>(KAZConfigFactory::createParamSetCfg(&text, nullptr));
}

NodePtr<IParamCfg> readParam(const std::wstring& text) {
    return NodePtr<IParamCfg>(KAZConfigFactory::createParamCfg(&text, nullptr));
}

// A call on `Node` that must raise an out-of-range error (or "Invalid
// argument" when `message` is empty) in `method`.
template <class Node>
struct Refusal {
    const char* label;
    std::function<void(Node&, INodeCfg* item)> call;
    std::wstring message;
    std::wstring method;
};

// Each refusal must leave the node unchanged and its fresh item unowned.
template <class Node>
void expectRefusals(Node& node, const std::function<INodeCfg*()>& newItem,
                    const std::wstring& className, const std::vector<Refusal<Node>>& cases) {
    const std::wstring before = node.toXml();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.label);
        NodePtr<> item(newItem());
        const auto chain = thrownChain([&] { c.call(node, item.get()); });
        ASSERT_EQ(chain.size(), 1u);
        EXPECT_EQ(chain[0].kind,
                  c.message.empty() ? IKAZException::InvalidData : IKAZException::OutOfRange);
        EXPECT_EQ(chain[0].message, c.message.empty() ? L"Invalid argument" : c.message);
        EXPECT_EQ(methodOf(chain[0].context), className + L"::" + c.method);
        EXPECT_EQ(item->getParent(), nullptr);
        EXPECT_EQ(node.toXml(), before);
    }
}

class ParamSetsTest : public LeakCheckedTest {};

TEST_F(ParamSetsTest, RefusedListCallsNameTheOperationAndChangeNothing) {
    using S = IParamSetsCfg;
    const std::wstring out = L"index 2 is out of range";
    const std::vector<Refusal<S>> cases = {
        {"typed getChild", [](S& s, INodeCfg*) { s.getParamSet(2u); }, out, L"getChild"},
        {"typed replace",
         [](S& s, INodeCfg* item) { s.replaceParamSet(dynamic_cast<IParamSetCfg*>(item), 2); }, out,
         L"replace"},
        {"erase", [](S& s, INodeCfg*) { s.erase(2); }, out, L"remove"},
        {"unknown name", [](S& s, INodeCfg*) { s.getParamSet(L"No"); }, L"index No is out of range",
         L"getParamSet"},
        {"the name attribute", [](S& s, INodeCfg*) { s.getParamSet(L"Nm"); },
         L"index Nm is out of range", L"getParamSet"},
    };
    auto sets = readSets(L"<ParamSets><A/><B name=\"Nm\"/></ParamSets>");
    expectRefusals<S>(
        *sets, [] { return KAZConfigFactory::createParamSetCfg(nullptr, nullptr); },
        L"kaz::kazparser::ParamSetsCfgImpl", cases);
}

TEST_F(ParamSetsTest, RefusedSetCallsNameTheOperationAndChangeNothing) {
    using S = IParamSetCfg;
    const std::wstring out = L"index 2 is out of range";
    const std::wstring noZ = L"z is not the name of child object";
    auto param = [](INodeCfg* item) { return dynamic_cast<IParamCfg*>(item); };
    const std::vector<Refusal<S>> cases = {
        {"typed getChild", [](S& s, INodeCfg*) { s.getParam(2u); }, out, L"getChild"},
        {"typed insert", [&](S& s, INodeCfg* item) { s.insert(param(item), 2); }, out, L"insert"},
        {"typed replace", [&](S& s, INodeCfg* item) { s.replaceParam(param(item), 2u); }, out,
         L"replace"},
        {"replace by name", [&](S& s, INodeCfg* item) { s.replaceParam(param(item), L"z"); }, noZ,
         L"replaceParam"},
        {"erase", [](S& s, INodeCfg*) { s.erase(2u); }, out, L"remove"},
        {"parameter by name", [](S& s, INodeCfg*) { s.getParam(L"z"); }, noZ, L"getParam"},
        {"value by name",
         [](S& s, INodeCfg*) {
             int value = 0;
             s.getParamValue(L"z", value);
         },
         noZ, L"getParam"},
        {"attribute", [](S& s, INodeCfg*) { s.getAttribute(1u); }, L"index 1 is out of range",
         L"getAttribute"},
        {"set attribute", [](S& s, INodeCfg*) { s.setAttribute(1u, L"v"); },
         L"index 1 is out of range", L"setAttribute"},
        {"attribute by name", [](S& s, INodeCfg*) { s.getAttribute(L"z"); }, noZ, L"getAttribute"},
    };
    auto set = readSet(L"<Set e=\"1\"><a/><b/></Set>");
    expectRefusals<S>(
        *set, [] { return KAZConfigFactory::createParamCfg(nullptr, nullptr); },
        L"kaz::kazparser::ParamSetCfgImpl", cases);
    EXPECT_FALSE(set->erase(L"z"));
}

TEST_F(ParamSetsTest, TypedOperationsRefuseNullAndDeleteWhatTheyTakeOut) {
    auto param = [](const wchar_t* name) {
        return readParam(L"<" + std::wstring(name) + L"/>").release();
    };
    auto set = readSet(L"<S/>");
    EXPECT_EQ(set->append(static_cast<IParamCfg*>(nullptr)), kNoPosition);
    for (const wchar_t* name : {L"a", L"b", L"c"}) set->append(param(name));
    EXPECT_EQ(set->insert(param(L"x"), 1u), 1u);
    EXPECT_EQ(set->getParam(1u)->getParent(), set.get());
    const long live = MemObject::liveCount();
    EXPECT_TRUE(set->erase(0u));
    EXPECT_TRUE(set->erase(L"c"));
    EXPECT_TRUE(set->replaceParam(param(L"e"), L"b"));
    EXPECT_TRUE(set->replaceParam(param(L"f"), 0u));
    EXPECT_EQ(MemObject::liveCount(), live - 2) << "erased and replaced parameters are deleted";
    EXPECT_EQ(set->toXml(), L"<S><f></f><e></e></S>");

    auto newSet = [](const wchar_t* name) {
        return readSet(L"<" + std::wstring(name) + L"/>").release();
    };
    auto sets = readSets(L"<ParamSets><A/><B/></ParamSets>");
    EXPECT_EQ(sets->append(static_cast<IParamSetCfg*>(nullptr)), kNoPosition);
    EXPECT_EQ(sets->append(newSet(L"C")), 3u);
    EXPECT_EQ(sets->insert(newSet(L"X"), 0u), 0u);
    EXPECT_EQ(sets->getParamSet(0u)->getParent(), sets.get());
    EXPECT_TRUE(sets->setChild(newSet(L"D")));
    IParamSetCfg* y = newSet(L"Y");
    const long setsLive = MemObject::liveCount();
    EXPECT_TRUE(sets->erase(1u));
    EXPECT_TRUE(sets->replaceParamSet(y, 3u));
    EXPECT_EQ(MemObject::liveCount(), setsLive - 2);
    EXPECT_EQ(sets->toXml(), L"<ParamSets><X></X><B></B><C></C><Y></Y></ParamSets>");
}

TEST_F(ParamSetsTest, LookupsByNameFindTheLastOfEqualElementNames) {
    auto set = readSet(L"<S><a shift=\"1\"/><b/><a shift=\"2\"/></S>");
    EXPECT_DOUBLE_EQ(set->getParam(L"a")->getShift(), 2.0);
    EXPECT_TRUE(set->hasParam(L"a"));
    EXPECT_FALSE(set->hasParam(L"A"));
    EXPECT_TRUE(set->erase(L"a"));
    EXPECT_EQ(set->toXml(), L"<S><a shift=\"1.0000\"></a><b></b></S>");

    auto sets =
        readSets(L"<ParamSets><Options name=\"1\"/><ParamSet/><Options name=\"2\"/></ParamSets>");
    EXPECT_EQ(sets->getParamSet(L"Options")->getParamSetName(), L"2");
    EXPECT_TRUE(sets->hasParamSet(L"ParamSet"));
    EXPECT_FALSE(sets->hasParamSet(L"1")) << "the name attribute is not the set's name";
    EXPECT_FALSE(readSets(L"<ParamSets/>")->hasParamSet(L"Options"));
    EXPECT_TRUE(sets->isEditable());
}

TEST_F(ParamSetsTest, SetsWriteElementNameTextsAndExtrasInOrder) {
    NodePtr<IParamSetCfg> set(KAZConfigFactory::createParamSetCfg(nullptr, nullptr));
    EXPECT_EQ(set->toXml(), L"<ParamSet></ParamSet>");
    set->setParamSetName(L"Road");
    EXPECT_EQ(set->getName(), L"ParamSet");
    set->setName(L"Options");
    set->setAttribute(L"z", L"1");
    set->setDescStringID(L"D1");
    set->setDesc(L"d");
    set->setNameStringID(L"N1");
    set->setDisplayName(L"shown");
    set->setDisplayDesc(L"shown too");
    EXPECT_EQ(set->getName(), L"Options");
    EXPECT_EQ(set->toXml(),
              L"<Options name=\"Road\" nameStringID=\"N1\" desc=\"d\" descStringID=\"D1\" "
              L"z=\"1\"></Options>");
    set->setName(L"");
    set->setNameStringID(L"");
    EXPECT_EQ(set->toXml(),
              L"<ParamSet name=\"Road\" desc=\"d\" descStringID=\"D1\" z=\"1\"></ParamSet>");
}

TEST_F(ParamSetsTest, AttributeByNameIsOverwrittenByEachCall) {
    auto set = readSet(L"<S a=\"1\" b=\"2\" name=\"n\"/>");
    EXPECT_EQ(set->getAttributeCount(), 2u);
    EXPECT_FALSE(set->hasAttribute(L"name"));
    const std::wstring& a = set->getAttribute(L"a");
    EXPECT_EQ(a, L"1");
    EXPECT_EQ(&set->getAttribute(L"b"), &a);
    EXPECT_EQ(a, L"2");
    set->setAttribute(0u, L"one");
    set->setAttribute(L"b", L"two");
    set->setAttribute(L"c", L"3");
    EXPECT_TRUE(set->hasAttribute(L"c"));
    EXPECT_EQ(set->toXml(), L"<S name=\"n\" a=\"one\" b=\"two\" c=\"3\"></S>");
}

// The only test that reads a set attribute by position successfully: the
// answer is whatever the first such call in the process read.
TEST_F(ParamSetsTest, AttributeByPositionKeepsTheFirstValueRead) {
    auto set = readSet(L"<S a=\"first\" b=\"second\"/>");
    auto other = readSet(L"<T c=\"third\"/>");
    const std::wstring& first = set->getAttribute(0u);
    EXPECT_EQ(first, L"first");
    EXPECT_EQ(set->getAttribute(1u), L"first");
    EXPECT_EQ(&other->getAttribute(0u), &first);
}

TEST_F(ParamSetsTest, ParamValuesAreReadFromTypedData) {
    auto set = readSet(
        L"<S><d><UseDouble>2.5</UseDouble></d><i><UseInteger>-7</UseInteger></i>"
        L"<s><UseString>text</UseString></s><b><UseBoolean>true</UseBoolean></b><none/>"
        L"<ref><UseData>x</UseData></ref><lang><UseLanguageString>L1</UseLanguageString></lang></"
        L"S>");
    double d = 0;
    int i = 0;
    std::wstring s;
    bool b = false;
    set->getParamValue(L"d", d);
    set->getParamValue(L"i", i);
    set->getParamValue(L"s", s);
    set->getParamValue(L"b", b);
    EXPECT_EQ(d, 2.5);
    EXPECT_EQ(i, -7);
    EXPECT_EQ(s, L"text");
    EXPECT_TRUE(b);
    // No data, data that is no typed value, a value of another type.
    for (const wchar_t* name : {L"none", L"ref", L"lang", L"s"}) {
        double unchanged = 9.0;
        set->getParamValue(name, unchanged);
        EXPECT_EQ(unchanged, 9.0) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(ParamSetsTest, ClonesKeepTheDisplayTexts) {
    auto set = readSet(L"<S/>");
    set->setDisplayName(L"shown");
    set->setDisplayDesc(L"shown too");
    NodePtr<IParamSetCfg> copy(dynamic_cast<IParamSetCfg*>(set->clone()));
    EXPECT_EQ(copy->getDisplayName(), L"shown");
    EXPECT_EQ(copy->getDisplayDesc(), L"shown too");
}

// Sets and parameters of any element name, every written attribute, typed data.
const std::wstring kSetsText =
    L"<ParamSets>"
    L"<Options name=\"Road\" nameStringID=\"N1\" desc=\"Roads\" descStringID=\"D1\" group=\"g\">"
    L"<Width shift=\"0.5000\" transformCode=\"T\" scaleRelate=\"true\" shiftScaleRelate=\"true\" "
    L"systemValue=\"true\" unit=\"mm\" step=\"1\"><UseDouble>2.5</UseDouble></Width>"
    L"<Param><UseString>a b</UseString></Param><Lanes><UseInteger>3</UseInteger></Lanes>"
    L"<Visible><UseBoolean>true</UseBoolean></Visible></Options>"
    L"<ParamSet><Empty></Empty></ParamSet>"
    L"</ParamSets>";

TEST_F(ParamSetsTest, ACompleteTextWritesBackIdentically) {
    auto sets = readSets(kSetsText);
    EXPECT_EQ(sets->toXml(), kSetsText);
    IParamCfg* width = sets->getParamSet(L"Options")->getParam(L"Width");
    EXPECT_EQ(width->getAttribute(L"step"), L"1");
    EXPECT_EQ(width->getData()->getParent(), width);
}

TEST_F(ParamSetsTest, FactoryFormsGiveTheKindTheTextHolds) {
    EXPECT_EQ(readSet(L"<Anything><p/></Anything>")->getParam(0u)->getName(), L"p");
    EXPECT_EQ(readParam(L"<Anything/>")->getName(), L"Anything");
    EXPECT_EQ(readSets(L"<Other/>"), nullptr);
    EXPECT_EQ(readSet(L"<ParamSets/>"), nullptr);
}

}  // namespace
