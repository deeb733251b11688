// Presentation elements: attributes and their written form, the four
// children and their order, refused calls.

#include <functional>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IPresentationElementCfg;
using kaz::kazparser::KAZConfigFactory;
using E = IPresentationElementCfg;

NodePtr<E> readElement(const std::wstring& text) {
    return NodePtr<E>(KAZConfigFactory::createPresentationElementCfg(&text, nullptr));
}

NodePtr<> readNode(const std::wstring& text) {
    return NodePtr<>(KAZConfigFactory::createNodeCfg(&text, nullptr));
}

class PresentationElementTest : public LeakCheckedTest {};

TEST_F(PresentationElementTest, AttributesAreReadByNameAndWrittenRawInTheirOrder) {
    auto element = readElement(
        L"<PresentationElement other=\"x\" descStringID=\"D\" schemaVersion=\"2\" "
        L"kaz.DwgSysParam.MeasureScale=\"1.23456\" desc=\"A &amp; B\" nameStringID=\"N\" "
        L"name=\"Road\"/>");
    EXPECT_EQ(element->getName(), L"Road") << "the name attribute, not the tag";
    EXPECT_EQ(element->getDisplayName(), L"Road") << "its ID does not resolve";
    EXPECT_EQ(element->toXml(),
              L"<PresentationElement name=\"Road\" nameStringID=\"N\" desc=\"A & B\" "
              L"descStringID=\"D\" schemaVersion=\"2\" kaz.DwgSysParam.MeasureScale=\"1.2346\">"
              L"</PresentationElement>");

    auto noNumber = readElement(L"<PresentationElement kaz.DwgSysParam.MeasureScale=\"abc\"/>");
    EXPECT_TRUE(noNumber->hasMeasureScale());
    EXPECT_EQ(noNumber->getMeasureScale(), 0.0);
    EXPECT_EQ(noNumber->toXml(),
              L"<PresentationElement kaz.DwgSysParam.MeasureScale=\"0.0000\">"
              L"</PresentationElement>");
}

// A prefix does not hide an attribute of the presentation kinds; a
// namespace declaration is no attribute of theirs.
TEST_F(PresentationElementTest, PresentationKindsReadAttributesByLocalName) {
    const struct {
        const wchar_t* text;
        const wchar_t* written;
    } cases[] = {
        {L"<PresentationElement xmlns:k=\"urn:k\" k:name=\"N\"/>",
         L"<PresentationElement name=\"N\"></PresentationElement>"},
        {L"<PresentationElement xmlns:name=\"urn:k\"/>",
         L"<PresentationElement></PresentationElement>"},
        {L"<PresentationGroup xmlns:k=\"urn:k\" k:name=\"G\" k:previewImg=\"p.png\"/>",
         L"<PresentationGroup name=\"G\" previewImg=\"p.png\"></PresentationGroup>"},
        {L"<UseFixedPresentationElement xmlns:k=\"urn:k\" k:elemID=\"7\" k:active=\"true\" "
         L"k:label=\"L\"/>",
         L"<UseFixedPresentationElement elemID=\"7\" active=\"true\" label=\"L\">"
         L"</UseFixedPresentationElement>"},
        {L"<UseRefPresentationElement xmlns:k=\"urn:k\" k:refFileName=\"f.xml\"/>",
         L"<UseRefPresentationElement refFileName=\"f.xml\"></UseRefPresentationElement>"},
    };
    for (const auto& c : cases) EXPECT_EQ(readNode(c.text)->toXml(), c.written) << c.text;
    EXPECT_EQ(readElement(cases[0].text)->getName(), L"N");
}

TEST_F(PresentationElementTest, ChildrenTakeTheirFixedOrderWhateverTheDocumentOrder) {
    auto element = readElement(
        L"<PresentationElement><OutputConfig/><InputConfig/><ExtraValuesConfig/><Features/>"
        L"</PresentationElement>");
    EXPECT_EQ(element->toXml(),
              L"<PresentationElement><Features></Features><ExtraValuesConfig></ExtraValuesConfig>"
              L"<InputConfig></InputConfig><OutputConfig></OutputConfig></PresentationElement>");
    delete element->releaseFeatures();
    delete element->releaseExtraValuesConfig();
    EXPECT_EQ(element->getChildCount(), 2u);
    EXPECT_EQ(element->getChild(0), element->getInputConfig());
    EXPECT_EQ(element->getChild(1), element->getOutputConfig());

    auto features = readNode(L"<Features><Wide>1</Wide></Features>");
    EXPECT_FALSE(element->setChild(features->getChild(0))) << "a Feature is no Features list";
    EXPECT_EQ(features->getChild(0)->getParent(), features.get());
}

TEST_F(PresentationElementTest, ChildrenHaveOneOwnerThroughSetAndReplace) {
    auto element = readElement(L"<PresentationElement><Features/></PresentationElement>");
    const long live = MemObject::liveCount();
    EXPECT_TRUE(element->setChild(readNode(L"<Features/>").release()));
    EXPECT_EQ(MemObject::liveCount(), live) << "the previous features are deleted";

    auto* x = KAZConfigFactory::createOutputConfigCfg(nullptr, nullptr);
    auto* y = KAZConfigFactory::createOutputConfigCfg(nullptr, nullptr);
    EXPECT_EQ(element->replaceOutputConfig(x), nullptr);
    EXPECT_EQ(x->getParent(), element.get());
    NodePtr<> previous(element->replaceOutputConfig(y));
    EXPECT_EQ(previous.get(), x);
    EXPECT_EQ(x->getParent(), nullptr);
    EXPECT_EQ(element->replaceOutputConfig(y), nullptr) << "replaced by itself, it stays";
    element->setOutputConfig(y);
    EXPECT_EQ(element->getOutputConfig(), y);
}

TEST_F(PresentationElementTest, RefusedCallsNameTheOperationAndChangeNothing) {
    const struct {
        const wchar_t* method;
        std::function<void(E&)> call;
    } cases[] = {
        {L"setFeatures", [](E& e) { e.setFeatures(nullptr); }},
        {L"setExtraValuesConfig", [](E& e) { e.setExtraValuesConfig(nullptr); }},
        {L"setInputConfig", [](E& e) { e.setInputConfig(nullptr); }},
        {L"setOutputConfig", [](E& e) { e.setOutputConfig(nullptr); }},
        {L"replaceFeatures", [](E& e) { e.replaceFeatures(nullptr); }},
        {L"replaceExtraValuesConfig", [](E& e) { e.replaceExtraValuesConfig(nullptr); }},
        {L"replaceInputConfig", [](E& e) { e.replaceInputConfig(nullptr); }},
        {L"replaceOutputConfig", [](E& e) { e.replaceOutputConfig(nullptr); }},
        {L"setChild", [](E& e) { e.setChild(nullptr); }},
    };
    const std::wstring text =
        L"<PresentationElement name=\"a\"><InputConfig></InputConfig>"
        L"</PresentationElement>";
    auto element = readElement(text);
    for (const auto& c : cases) {
        expectError([&] { c.call(*element); }, IKAZException::InvalidData, L"Invalid argument",
                    L"PresentationElementCfgImpl::" + std::wstring(c.method));
        EXPECT_EQ(element->toXml(), text);
    }
}

}  // namespace
