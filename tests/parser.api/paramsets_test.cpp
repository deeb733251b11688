// Parameter sets and their lists: typed operations, look-ups by name,
// attributes and values.

#include "testsupport.h"

namespace {

using namespace kaztest;

NodePtr<IParamSetsCfg> readSets(const std::wstring& text) {
    return NodePtr<IParamSetsCfg>(KAZConfigFactory::createParamSetsCfg(&text, nullptr));
}

NodePtr<IParamSetCfg> readSet(const std::wstring& text) {
    return NodePtr<IParamSetCfg>(KAZConfigFactory::createParamSetCfg(&text, nullptr));
}

using ParamSetsTest = LeakCheckedTest;

TEST_F(ParamSetsTest, TypedOperationsRefuseNullAndDeleteWhatTheyTakeOut) {
    auto param = [](const wchar_t* name) {
        const std::wstring text = L"<" + std::wstring(name) + L"/>";
        return KAZConfigFactory::createParamCfg(&text, nullptr);
    };
    auto set = readSet(L"<S/>");
    EXPECT_EQ(set->append(static_cast<IParamCfg*>(nullptr)), kNoPosition);
    for (const wchar_t* name : {L"a", L"b", L"c"}) set->append(param(name));
    EXPECT_EQ(set->insert(param(L"x"), 1u), 1u);
    const long live = MemObject::liveCount();
    EXPECT_TRUE(set->erase(0u));
    EXPECT_TRUE(set->erase(L"c"));
    EXPECT_FALSE(set->erase(L"z"));
    EXPECT_TRUE(set->replaceParam(param(L"e"), L"b"));
    EXPECT_TRUE(set->replaceParam(param(L"f"), 0u));
    EXPECT_EQ(MemObject::liveCount(), live - 2) << "erased and replaced parameters are deleted";
    EXPECT_EQ(set->toXml(), L"<S><f></f><e></e></S>");

    auto sets = readSets(L"<ParamSets><A/><B/></ParamSets>");
    EXPECT_EQ(sets->append(static_cast<IParamSetCfg*>(nullptr)), kNoPosition);
    IParamSetCfg* y = readSet(L"<Y/>").release();
    const long setsLive = MemObject::liveCount();
    EXPECT_TRUE(sets->erase(1u));
    EXPECT_TRUE(sets->replaceParamSet(y, 0u));
    EXPECT_EQ(MemObject::liveCount(), setsLive - 2);
    EXPECT_EQ(sets->toXml(), L"<ParamSets><Y></Y></ParamSets>");
}

TEST_F(ParamSetsTest, LookupsByNameFindTheLastOfEqualElementNames) {
    auto set = readSet(L"<S><a shift=\"1\"/><b/><a shift=\"2\"/></S>");
    EXPECT_DOUBLE_EQ(set->getParam(L"a")->getShift(), 2.0);
    EXPECT_FALSE(set->hasParam(L"A"));
    EXPECT_TRUE(set->erase(L"a"));
    EXPECT_EQ(set->toXml(), L"<S><a shift=\"1.0000\"></a><b></b></S>");

    auto sets =
        readSets(L"<ParamSets><Options name=\"1\"/><ParamSet/><Options name=\"2\"/></ParamSets>");
    EXPECT_EQ(sets->getParamSet(L"Options")->getParamSetName(), L"2");
}

// Without an element name a set writes "ParamSet"; its display texts are
// copied, not written.
TEST_F(ParamSetsTest, SetsWithoutAnElementNameWriteParamSet) {
    auto set = readSet(L"<Options name=\"Road\" desc=\"d\"/>");
    set->setDisplayName(L"shown");
    set->setDisplayDesc(L"shown too");
    set->setName(L"");
    EXPECT_EQ(set->toXml(), L"<ParamSet name=\"Road\" desc=\"d\"></ParamSet>");
    NodePtr<IParamSetCfg> copy(dynamic_cast<IParamSetCfg*>(set->clone()));
    EXPECT_EQ(copy->getDisplayName(), L"shown");
    EXPECT_EQ(copy->getDisplayDesc(), L"shown too");
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
        L"<ref><UseData>x</UseData></ref><lang><UseLanguageString>L1</UseLanguageString></lang>"
        L"</S>");
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

}  // namespace
