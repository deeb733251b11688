// Feature lists: names taken once, the name index after every change, the
// whole content kept as text; extra values found by name.

#include <tuple>

#include "testsupport.h"

namespace {

using namespace kaztest;

NodePtr<IFeaturesCfg> readList(const std::wstring& text) {
    return NodePtr<IFeaturesCfg>(KAZConfigFactory::createFeaturesCfg(&text, nullptr));
}

IFeatureCfg* newFeature(const std::wstring& name) {
    IFeatureCfg* feature = KAZConfigFactory::createFeatureCfg(nullptr, nullptr);
    feature->setName(name);
    return feature;
}

using FeaturesTest = LeakCheckedTest;
using ExtraValuesTest = FeaturesTest;

TEST_F(FeaturesTest, ANameIsTakenOnceAndRefusedSilently) {
    auto list = readList(L"<Features><A>first</A><B/></Features>");
    NodePtr<IFeatureCfg> duplicate(newFeature(L"A"));
    EXPECT_EQ(list->append(duplicate.get()), kNoPosition);
    EXPECT_FALSE(list->setChild(duplicate.get()));
    EXPECT_EQ(list->insert(duplicate.get(), 1), 1u) << "refused, yet the index is answered";
    EXPECT_EQ(list->replace(duplicate.get(), 1u), nullptr);
    EXPECT_EQ(duplicate->getParent(), nullptr);
    EXPECT_EQ(list->getCount(), 2u);
    // At the position of a feature of the same name the name is accepted.
    IFeatureCfg* again = newFeature(L"A");
    NodePtr<IFeatureCfg> old(list->replace(again, L"A"));
    EXPECT_EQ(old->getValue(), L"first");
    EXPECT_EQ(old->getParent(), nullptr);
    EXPECT_EQ((*list)[L"A"], again);
}

TEST_F(FeaturesTest, TheIndexFollowsEveryChangeOfPositions) {
    auto list = readList(L"<Features><A>1</A><B>2</B><C>3</C></Features>");
    NodePtr<> removed(list->remove(0u));
    expectError([&] { (*list)[L"A"]; }, IKAZException::OutOfRange,
                L"A is not the name of child object", L"FeaturesCfgImpl::operator []");
    EXPECT_EQ((*list)[L"C"], list->getChild(1));
    IFeatureCfg* d = newFeature(L"D");
    list->insert(d, 1);
    EXPECT_EQ((*list)[L"C"], list->getChild(2));
    // A second D, put before the first: the later position is indexed.
    list->insert(newFeature(L"D"), 1);
    EXPECT_EQ((*list)[L"D"], d);
    NodePtr<IFeaturesCfg> copy(dynamic_cast<IFeaturesCfg*>(list->clone()));
    EXPECT_EQ((*copy)[L"D"], copy->getChild(2));
    NodePtr<IFeatureCfg> taken(list->remove(L"B"));
    EXPECT_EQ((*list)[L"C"], list->getChild(2));
}

// Everything inside a feature is its value: nested markup with its
// attributes as read, entities and CDATA as the reader delivered them.
TEST_F(FeaturesTest, FeaturesKeepTheirWholeContentAsText) {
    const std::vector<std::tuple<std::wstring, std::wstring, std::wstring>> cases = {
        {L"<Label mode=\"a&amp;b\" size=\"2\">Hello</Label>", L"Hello",
         L"<Label mode=\"a&b\" size=\"2\">Hello</Label>"},
        {L"<F>x<g k=\"&lt;1\"><h/>t</g>y</F>", L"x<g k=\"<1\"><h></h>t</g>y",
         L"<F>x<g k=\"<1\"><h></h>t</g>y</F>"},
        {L"<F>a&lt;b&amp;c<![CDATA[<d>]]>&#65;</F>", L"a<b&c<d>A", L"<F>a<b&c<d>A</F>"},
        {L"<F><F>in</F>out</F>", L"<F>in</F>out", L"<F><F>in</F>out</F>"},
    };
    for (const auto& [text, value, written] : cases) {
        SCOPED_TRACE(testing::PrintToString(text));
        auto list = readList(L"<Features>" + text + L"<Next/></Features>");
        ASSERT_EQ(list->getCount(), 2u) << "raw mode ends at the feature's own end tag";
        EXPECT_EQ(dynamic_cast<IFeatureCfg*>(list->getChild(0))->getValue(), value);
        EXPECT_EQ(list->getChild(0)->toXml(), written);
        NodePtr<IFeatureCfg> alone(KAZConfigFactory::createFeatureCfg(&text, list.get()));
        EXPECT_EQ(alone->toXml(), written);
        EXPECT_EQ(alone->getParent(), list.get());
    }
}

TEST_F(ExtraValuesTest, ValuesAreFoundByTheirNamesInTheListAndItsCopy) {
    const std::wstring text =
        L"<ExtraValuesConfig><XValue name=\"w\"/><XValue name=\"h\"/><XValue name=\"w\"/>"
        L"</ExtraValuesConfig>";
    NodePtr<IExtraValuesConfigCfg> values(
        KAZConfigFactory::createExtraValuesConfigCfg(&text, nullptr));
    NodePtr<IExtraValuesConfigCfg> copy(dynamic_cast<IExtraValuesConfigCfg*>(values->clone()));
    EXPECT_EQ(copy->getXValue(L"w"), copy->getXValue(2u)) << "the later of two names";
}

}  // namespace
