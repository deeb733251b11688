// Presentation groups and element lists: attributes, children, refused
// calls, reference resolution, whole configurations, the working language
// and the factory forms.

#include <cstdlib>
#include <filesystem>
#include <functional>

#include "chainsupport.h"
#include "environmentadapter/IEnvironmentAdapter.h"

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
namespace fs = std::filesystem;

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

auto& environment() {
    return kaz::environmentadapter::IEnvironmentAdapter::getInstance();
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
    expectError([&] { group->getChild(2); }, IKAZException::OutOfRange, L"index 2 is out of range",
                L"PresentationGroupCfgImpl::getChild");
    EXPECT_EQ(group->getChildCount(), 2u);
}

TEST_F(PresentationGroupTest, ListTakesReferencesOnlyAndInsertNeedsAnExistingIndex) {
    auto list = readList(L"<PresentationElements/>");
    auto fixed = readNode(L"<UseFixedPresentationElement/>");
    auto element = readNode(L"<PresentationElement/>");
    expectError([&] { list->insert(fixed.get(), 0); }, IKAZException::OutOfRange,
                L"index 0 is out of range", L"PresentationElementsCfgImpl::insert");
    expectError([&] { list->setChild(element.get()); }, IKAZException::InvalidData,
                L"Invalid argument", L"PresentationElementsCfgImpl::append");
    EXPECT_TRUE(list->setChild(fixed.release()));
    EXPECT_EQ(list->getChild(0)->getParent(), list.get());
}

fs::path examplesDirectory() {
    const char* root = std::getenv("KAZ_TEST_DATA");
    return (root != nullptr ? fs::path(root) : fs::current_path()) / "examples";
}

// File references are taken under the examples folder.
class ReferenceResolutionTest : public LeakCheckedTest {
protected:
    void SetUp() override {
        LeakCheckedTest::SetUp();
        environment().setRootDirectory(examplesDirectory().wstring());
    }
    void TearDown() override {
        environment().resetRootDirectory();
        LeakCheckedTest::TearDown();
    }
};

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

TEST_F(PresentationGroupTest, FactoryFormsAgreeAndRefuseOtherRootKinds) {
    auto parent = readNode(L"<PresentationGroup/>");
    INodeCfg* p = parent.get();
    const std::wstring none;
    const std::pair<INodeCfg::NodeType, std::function<INodeCfg*(const std::wstring*)>> kinds[] = {
        {INodeCfg::PresentationGroup, [p](auto* t) { return F::createPresentationGroupCfg(t, p); }},
        {INodeCfg::PresentationElements,
         [p](auto* t) { return F::createPresentationElementsCfg(t, p); }},
        {INodeCfg::PresentationElement,
         [p](auto* t) { return F::createPresentationElementCfg(t, p); }},
        {INodeCfg::UseRefPresentationElement,
         [p](auto* t) { return F::createUseRefPresentationElementCfg(t, p); }},
        {INodeCfg::UseFixedPresentationElement,
         [p](auto* t) { return F::createUseFixedPresentationElementCfg(t, p); }},
    };
    for (const auto& [kind, create] : kinds) {
        for (const std::wstring* source : {static_cast<const std::wstring*>(nullptr), &none}) {
            NodePtr<> empty(create(source));
            EXPECT_EQ(empty->getNodeType(), kind);
            EXPECT_EQ(empty->getParent(), p);
        }
    }

    const std::wstring ref =
        L"<UseRefPresentationElement refFileName=\"a.xml\">"
        L"</UseRefPresentationElement>";
    const std::wstring list = L"<PresentationElements>" + ref + L"</PresentationElements>";
    const auto doc = kaz::xml::Document::create();
    ASSERT_TRUE(doc->loadXML(L"<Root><Other/>" + list + L"<PresentationElements/></Root>"));
    EXPECT_EQ(NodePtr<>(F::createPresentationElementsCfg(doc, nullptr))->toXml(), list)
        << "the first list in the text";
    EXPECT_EQ(NodePtr<>(F::createUseRefPresentationElementCfg(
                            doc->selectSingleNode(L"//UseRefPresentationElement"), nullptr))
                  ->toXml(),
              ref);
    EXPECT_EQ(F::createPresentationGroupCfg(&ref, nullptr), nullptr);
    EXPECT_EQ(NodePtr<>(F::createPresentationElementCfg(std::wstring(), nullptr))->toXml(),
              L"<PresentationElement></PresentationElement>");
}

}  // namespace
