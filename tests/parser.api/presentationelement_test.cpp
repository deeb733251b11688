// Presentation elements: the name and its display text.

#include "testsupport.h"

namespace {

using namespace kaztest;
using PresentationElementTest = LeakCheckedTest;

// The name attribute, not the tag, is the name; it carries the display name.
TEST_F(PresentationElementTest, NameIsTheNameAttributeAndCarriesTheDisplayName) {
    const std::wstring text = L"<PresentationElement nameStringID=\"N\" name=\"Road\"/>";
    NodePtr<IPresentationElementCfg> element(
        KAZConfigFactory::createPresentationElementCfg(&text, nullptr));
    EXPECT_EQ(element->getName(), L"Road");
    EXPECT_EQ(element->getDisplayName(), L"Road") << "its ID does not resolve";
    element->setName(L"Street");
    EXPECT_EQ(element->getDisplayName(), L"Street");
}

}  // namespace
