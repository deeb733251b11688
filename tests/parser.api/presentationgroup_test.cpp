// Presentation groups: names and descriptions apart from their display texts.

#include "testsupport.h"

namespace {

using namespace kaztest;
using PresentationGroupTest = LeakCheckedTest;

// Unlike an element's, a group's name leaves its display name alone.
TEST_F(PresentationGroupTest, NameAndDescriptionLeaveTheDisplayTextsAlone) {
    const std::wstring text = L"<PresentationGroup desc=\"d\" nameStringID=\"N\" name=\"Road\"/>";
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    group->setName(L"Street");
    group->setDesc(L"streets");
    EXPECT_EQ(group->getDisplayName(), L"Road");
    EXPECT_EQ(group->getDisplayDesc(), L"d");
}

}  // namespace
