// References to presentation elements: the label apart from its display
// text, and file references that cannot be resolved.

#include "testsupport.h"

namespace {

using namespace kaztest;

template <class I>
NodePtr<I> read(const std::wstring& text) {
    return NodePtr<I>(dynamic_cast<I*>(KAZConfigFactory::createNodeCfg(&text, nullptr)));
}

using PresentationReferenceTest = ExamplesRootTest;

TEST_F(PresentationReferenceTest, TheLabelLeavesItsDisplayTextAlone) {
    auto ref = read<IUseRefPresentationElementCfg>(L"<UseRefPresentationElement label=\"A\"/>");
    ref->setLabel(L"Road");
    EXPECT_EQ(ref->getDisplayLabel(), L"A");
}

TEST_F(PresentationReferenceTest, UnreadableFilesRaiseAndFilesOfOtherKindsAreSkipped) {
    const std::wstring valves = (examplesDirectory() / "elements" / "valves.xml").wstring();
    auto list = read<IPresentationElementsCfg>(
        L"<PresentationElements><UseRefPresentationElement refFileName=\"" + valves +
        L"\"/>"
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
        << "an absolute file name; entries before the failure stay resolved";
    EXPECT_EQ(list->getChild(1), group) << "a file of another kind is skipped";
    EXPECT_EQ(list->getChild(2), missing);

    expectNothingLeaksUnderAllocationFailures([] {
        read<IPresentationElementsCfg>(
            L"<PresentationElements><UseRefPresentationElement "
            L"refFileName=\"elements/valves.xml\"><ExtParams/></UseRefPresentationElement>"
            L"</PresentationElements>")
            ->resolveReferences();
    });
}

}  // namespace
