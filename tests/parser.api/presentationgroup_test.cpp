// Presentation groups and element lists: attributes, children, refused
// calls, reference resolution and the factory forms.

#include <functional>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IPresentationElementCfg;
using kaz::kazparser::IPresentationElementsCfg;
using kaz::kazparser::IPresentationGroupCfg;
using kaz::kazparser::IUseFixedPresentationElementCfg;
using kaz::kazparser::IUsePresentationElementCfg;
using kaz::kazparser::KAZConfigFactory;
using G = IPresentationGroupCfg;
using F = KAZConfigFactory;

NodePtr<G> readGroup(const std::wstring& text) {
    return NodePtr<G>(KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
}

NodePtr<IPresentationElementsCfg> readList(const std::wstring& text) {
    return NodePtr<IPresentationElementsCfg>(
        KAZConfigFactory::createPresentationElementsCfg(&text, nullptr));
}

NodePtr<> readNode(const std::wstring& text) {
    return NodePtr<>(KAZConfigFactory::createNodeCfg(&text, nullptr));
}

class PresentationGroupTest : public LeakCheckedTest {};

TEST_F(PresentationGroupTest, GroupWritesItsAttributesInOrderAndKeepsDisplayTextsApart) {
    auto group = readGroup(
        L"<PresentationGroup previewImg=\"p.png\" kaz.DwgSysParam.MeasureScale=\"0.5\" "
        L"schemaVersion=\"3\" descStringID=\"D\" desc=\"d\" nameStringID=\"N\" name=\"Road\" "
        L"other=\"x\"/>");
    EXPECT_EQ(group->toXml(),
              L"<PresentationGroup name=\"Road\" nameStringID=\"N\" desc=\"d\" descStringID=\"D\" "
              L"schemaVersion=\"3\" kaz.DwgSysParam.MeasureScale=\"0.5000\" previewImg=\"p.png\">"
              L"</PresentationGroup>");
    group->setName(L"Street");
    group->setDesc(L"streets");
    EXPECT_EQ(group->getName(), L"Street");
    EXPECT_EQ(group->getDisplayName(), L"Road");
    EXPECT_EQ(group->getDisplayDesc(), L"d");

    auto element = readNode(L"<PresentationElement name=\"Road\"/>");
    dynamic_cast<IPresentationElementCfg&>(*element).setName(L"Street");
    EXPECT_EQ(dynamic_cast<IPresentationElementCfg&>(*element).getDisplayName(), L"Street")
        << "unlike the group's, an element's name carries its display name";
}

TEST_F(PresentationGroupTest, GroupTakesItsThreeKindsOfChildInTheirOrder) {
    auto group = readGroup(L"<PresentationGroup><PresentationElements/></PresentationGroup>");
    EXPECT_EQ(group->getChild(0), group->getPresentationElements());
    auto element = readNode(L"<PresentationElement/>");
    EXPECT_FALSE(group->setChild(element.get()));
    EXPECT_EQ(element->getParent(), nullptr);
    EXPECT_TRUE(group->setChild(readNode(L"<Features/>").release()));
    EXPECT_EQ(group->toXml(),
              L"<PresentationGroup><Features></Features><PresentationElements>"
              L"</PresentationElements></PresentationGroup>");

    const std::pair<const wchar_t*, std::function<void(G&)>> refusals[] = {
        {L"setPresentationElements", [](G& g) { g.setPresentationElements(nullptr); }},
        {L"replacePresentationElements", [](G& g) { g.replacePresentationElements(nullptr); }},
        {L"setChild", [](G& g) { g.setChild(nullptr); }},
    };
    for (const auto& [method, call] : refusals)
        expectError([&] { call(*group); }, IKAZException::InvalidData, L"Invalid argument",
                    L"PresentationGroupCfgImpl::" + std::wstring(method));
    EXPECT_EQ(group->getChildCount(), 2u);
}

using ReferenceResolutionTest = ExamplesRootTest;

TEST_F(ReferenceResolutionTest, FileReferencesBecomeFixedOnesWithTheirAttributes) {
    const std::wstring valves = (examplesDirectory() / "elements" / "valves.xml").wstring();
    auto group = readGroup(
        L"<PresentationGroup><PresentationElements><UseFixedPresentationElement elemID=\"f\"/>"
        L"<UseRefPresentationElement elemID=\"r\" refFileName=\"elements/valves.xml\" "
        L"active=\"true\" refMainData=\"M\" label=\"l\" labelStringID=\"L\" desc=\"d\" "
        L"descStringID=\"D\"><ExtParams><ExtParam name=\"p\"/></ExtParams>"
        L"</UseRefPresentationElement><UseRefPresentationElement refFileName=\"" +
        valves + L"\"/></PresentationElements></PresentationGroup>");
    IPresentationElementsCfg* list = group->getPresentationElements();
    INodeCfg* first = list->getChild(0);
    dynamic_cast<IUsePresentationElementCfg*>(list->getChild(1))->setDisplayLabel(L"shown");

    EXPECT_EQ(list->resolveReferences(), 3u);
    EXPECT_EQ(list->getChild(0), first);
    auto* fixed = dynamic_cast<IUseFixedPresentationElementCfg*>(list->getChild(1));
    ASSERT_NE(fixed, nullptr);
    const std::wstring element = fixed->getPresentationElement()->toXml();
    EXPECT_EQ(element.find(L"<PresentationElement name=\"Valve symbols\""), 0u);
    EXPECT_EQ(fixed->toXml(),
              L"<UseFixedPresentationElement elemID=\"r\" active=\"true\" "
              L"refMainData=\"M\" label=\"l\" labelStringID=\"L\" desc=\"d\" "
              L"descStringID=\"D\"><ExtParams><ExtParam name=\"p\"></ExtParam>"
              L"</ExtParams>" +
                  element + L"</UseFixedPresentationElement>");
    EXPECT_EQ(fixed->getDisplayLabel(), L"shown");
    EXPECT_EQ(fixed->getParent(), group.get()) << "the new entry reports the list's parent";
    EXPECT_EQ(fixed->getPresentationElement()->getParent(), fixed);
    EXPECT_EQ(list->getChild(2)->toXml(),
              L"<UseFixedPresentationElement>" + element + L"</UseFixedPresentationElement>")
        << "an absolute file name";
}

TEST_F(ReferenceResolutionTest, UnreadableFilesRaiseAndFilesOfOtherKindsAreSkipped) {
    auto list = readList(
        L"<PresentationElements><UseRefPresentationElement refFileName=\"elements/pipes.xml\"/>"
        L"<UseRefPresentationElement refFileName=\"label-presentation.xml\"/>"
        L"<UseRefPresentationElement refFileName=\"missing.xml\"/></PresentationElements>");
    INodeCfg* group = list->getChild(1);
    INodeCfg* missing = list->getChild(2);
    const auto chain = thrownChain([&] { list->resolveReferences(); });
    ASSERT_EQ(chain.size(), 1u);
    EXPECT_EQ(chain[0].kind, IKAZException::InvalidData);
    EXPECT_EQ(chain[0].message,
              L"can not read file '" + (examplesDirectory() / "missing.xml").wstring() + L"'");
    EXPECT_EQ(list->getChild(0)->getNodeType(), INodeCfg::UseFixedPresentationElement)
        << "entries before the failure stay resolved";
    EXPECT_EQ(list->getChild(1), group) << "a file of another kind is skipped";
    EXPECT_EQ(list->getChild(2), missing);

    expectNothingLeaksUnderAllocationFailures([] {
        readList(
            L"<PresentationElements><UseRefPresentationElement "
            L"refFileName=\"elements/valves.xml\"><ExtParams/></UseRefPresentationElement>"
            L"</PresentationElements>")
            ->resolveReferences();
    });
}

TEST_F(PresentationGroupTest, FormsTakeTheFirstListAndRefuseOtherRootKinds) {
    const std::wstring ref =
        L"<UseRefPresentationElement refFileName=\"a.xml\">"
        L"</UseRefPresentationElement>";
    const std::wstring list = L"<PresentationElements>" + ref + L"</PresentationElements>";
    const std::wstring root = L"<Root><Other/>" + list + L"<PresentationElements/></Root>";
    EXPECT_EQ(NodePtr<>(F::createPresentationElementsCfg(&root, nullptr))->toXml(), list)
        << "the first list in the text";
    EXPECT_EQ(F::createPresentationGroupCfg(&ref, nullptr), nullptr);
    EXPECT_EQ(NodePtr<>(F::createPresentationElementCfg(std::wstring(), nullptr))->toXml(),
              L"<PresentationElement></PresentationElement>");
}

}  // namespace
