// References to presentation elements, fixed and file: the "active" rule,
// the written attribute orders, their children and their different
// setChild rules.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IUseFixedPresentationElementCfg;
using kaz::kazparser::IUseRefPresentationElementCfg;
using kaz::kazparser::KAZConfigFactory;

template <class I>
NodePtr<I> read(const std::wstring& text) {
    return NodePtr<I>(dynamic_cast<I*>(KAZConfigFactory::createNodeCfg(&text, nullptr)));
}

class PresentationReferenceTest : public LeakCheckedTest {};

TEST_F(PresentationReferenceTest, ActiveIsTrueExactlyForTrueInAnyCase) {
    const struct {
        const wchar_t* value;
        bool active;
    } cases[] = {
        {L"True", true}, {L"TRUE", true}, {L"1", false}, {L"yes", false}, {L"false", false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.value)));
        auto ref = read<IUseRefPresentationElementCfg>(L"<UseRefPresentationElement active=\"" +
                                                       std::wstring(c.value) + L"\"/>");
        ASSERT_NE(ref, nullptr);
        EXPECT_EQ(ref->isActive(), c.active);
        EXPECT_EQ(ref->toXml(), c.active ? L"<UseRefPresentationElement active=\"true\">"
                                           L"</UseRefPresentationElement>"
                                         : L"<UseRefPresentationElement>"
                                           L"</UseRefPresentationElement>");
    }
}

TEST_F(PresentationReferenceTest, EachKindWritesItsAttributesInItsOwnOrder) {
    const std::wstring attributes =
        L" descStringID=\"D\" desc=\"d\" labelStringID=\"L\" label=\"A &amp; B\" "
        L"refMainData=\"M\" active=\"true\" refFileName=\"f.xml\" elemID=\"e\" other=\"x\"/>";
    auto fixed =
        read<IUseFixedPresentationElementCfg>(L"<UseFixedPresentationElement" + attributes);
    auto ref = read<IUseRefPresentationElementCfg>(L"<UseRefPresentationElement" + attributes);
    ASSERT_NE(fixed, nullptr);
    ASSERT_NE(ref, nullptr);
    EXPECT_EQ(fixed->toXml(),
              L"<UseFixedPresentationElement elemID=\"e\" active=\"true\" refMainData=\"M\" "
              L"label=\"A & B\" labelStringID=\"L\" desc=\"d\" descStringID=\"D\">"
              L"</UseFixedPresentationElement>")
        << "the fixed reference reads no file name";
    EXPECT_EQ(ref->toXml(),
              L"<UseRefPresentationElement elemID=\"e\" refFileName=\"f.xml\" active=\"true\" "
              L"refMainData=\"M\" label=\"A & B\" labelStringID=\"L\" desc=\"d\" "
              L"descStringID=\"D\"></UseRefPresentationElement>");
    ref->setLabel(L"Road");
    EXPECT_EQ(ref->getDisplayLabel(), L"A & B") << "the label leaves its display text alone";
}

TEST_F(PresentationReferenceTest, FixedSetChildRefusesOtherKindsWhileFileSetChildRaises) {
    auto fixed = read<IUseFixedPresentationElementCfg>(
        L"<UseFixedPresentationElement><PresentationElement/><ExtParams/><Features/>"
        L"</UseFixedPresentationElement>");
    ASSERT_NE(fixed, nullptr);
    EXPECT_EQ(fixed->toXml(),
              L"<UseFixedPresentationElement><ExtParams></ExtParams>"
              L"<PresentationElement></PresentationElement>"
              L"</UseFixedPresentationElement>")
        << "Features refused; the parameters come first";
    NodePtr<> params(fixed->releaseExtParams());
    EXPECT_EQ(fixed->getChild(0), fixed->getPresentationElement());
    expectError([&] { fixed->setChild(nullptr); }, IKAZException::InvalidData, L"Invalid argument",
                L"UseFixedPresentationElementCfgImpl::setChild");

    auto ref = read<IUseRefPresentationElementCfg>(L"<UseRefPresentationElement/>");
    ASSERT_NE(ref, nullptr);
    for (INodeCfg* child :
         {static_cast<INodeCfg*>(fixed->getPresentationElement()), static_cast<INodeCfg*>(nullptr)})
        expectError([&] { ref->setChild(child); }, IKAZException::InvalidData, L"Invalid argument",
                    L"UseRefPresentationElementCfgImpl::setExtParams");
    EXPECT_TRUE(ref->setChild(params.release()));
    EXPECT_EQ(ref->getChild(0)->getParent(), ref.get());
}

}  // namespace
