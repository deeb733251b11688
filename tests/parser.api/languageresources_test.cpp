// The working language: which texts a resource gives, refused resources,
// and language strings showing the texts.

#include "testsupport.h"

namespace {

using namespace kaztest;

// The text a language string of `id` shows.
std::wstring shown(const std::wstring& id) {
    NodePtr<ILanguageStringCfg> text(KAZConfigFactory::createLanguageStringCfg(nullptr, nullptr));
    text->setStringID(id);
    return text->getDisplayText();
}

const std::wstring kEnglish =
    L"<Language id=\"root\"><String id=\"road\">Road</String>"
    L"<Group><String id=\"lane\">La<![CDATA[n]]>e &amp; more</String><String>no id</String>"
    L"</Group><String id=\"road\">Street</String></Language>";

// Leaves no working language behind.
using LanguageResourceTest = ExamplesRootTest;

TEST_F(LanguageResourceTest, LanguageStringsShowTheTextsOfTheWorkingLanguage) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(kEnglish));
    EXPECT_EQ(shown(L"road"), L"Street") << "a repeated ID keeps the later text";
    EXPECT_EQ(shown(L"lane"), L"Lane & more") << "elements at any depth, their whole text";
    EXPECT_EQ(shown(L"root"), L"root") << "the document element is no entry";
    EXPECT_EQ(shown(L""), L"") << "elements without an ID are no entries";

    const std::wstring text = L"<UseLanguageString>road</UseLanguageString>";
    NodePtr<ILanguageStringCfg> read(KAZConfigFactory::createLanguageStringCfg(&text, nullptr));
    EXPECT_EQ(read->getDisplayText(), L"Street");
    EXPECT_EQ(read->toXml(), text) << "the ID is what is written";

    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(L"<L><S id=\"lane\">Voie</S></L>"));
    EXPECT_EQ(shown(L"road"), L"road") << "a load replaces the whole table";
}

TEST_F(LanguageResourceTest, RefusedResourcesKeepTheWorkingLanguage) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(kEnglish));
    for (const std::wstring resource : {L"", L"<Language><String id=\"road\">Rue</String>"}) {
        EXPECT_FALSE(KAZConfigFactory::setWorkingLanguageResource(resource));
        EXPECT_EQ(shown(L"road"), L"Street");
    }
}

}  // namespace
