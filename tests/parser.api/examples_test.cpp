// The shipped example configurations: each reads to the kind its root
// element names and writes back exactly as it is stored; the file
// references of the water network resolve to the element files beside it.

#include <cstdlib>
#include <filesystem>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "ioutils/IOUtils.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IPresentationGroupCfg;
using kaz::kazparser::IUseFixedPresentationElementCfg;
using kaz::kazparser::KAZConfigFactory;
namespace fs = std::filesystem;

fs::path examplesDirectory() {
    const char* root = std::getenv("KAZ_TEST_DATA");
    return (root != nullptr ? fs::path(root) : fs::current_path()) / "examples";
}

// The file's text without the line break that ends it.
std::wstring readExample(const char* name) {
    std::wstring text = ioutils::IOUtilsFactory::createIOUtils()->readTextFile(
        (examplesDirectory() / name).wstring());
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r')) text.pop_back();
    return text;
}

auto& environment() {
    return kaz::environmentadapter::IEnvironmentAdapter::getInstance();
}

// File references are taken under the examples folder.
class ExamplesTest : public LeakCheckedTest {
protected:
    void SetUp() override {
        LeakCheckedTest::SetUp();
        environment().setRootDirectory(examplesDirectory().wstring());
    }
    void TearDown() override {
        KAZConfigFactory::setWorkingLanguageResource(L"<Language/>");
        environment().resetRootDirectory();
        LeakCheckedTest::TearDown();
    }
};

TEST_F(ExamplesTest, EveryConfigurationWritesBackAsItIsStored) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(readExample("language/en.xml")));
    const struct {
        const char* file;
        INodeCfg::NodeType kind;
    } examples[] = {
        {"label-presentation.xml", INodeCfg::PresentationGroup},
        {"table-presentation.xml", INodeCfg::PresentationGroup},
        {"water-network.xml", INodeCfg::PresentationGroup},
        {"elements/pipes.xml", INodeCfg::PresentationElement},
        {"elements/valves.xml", INodeCfg::PresentationElement},
    };
    for (const auto& example : examples) {
        SCOPED_TRACE(example.file);
        const std::wstring text = readExample(example.file);
        NodePtr<> node(KAZConfigFactory::createNodeCfg(&text, nullptr));
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->getNodeType(), example.kind);
        const std::wstring written = node->toXml();
        EXPECT_EQ(written, text);
        EXPECT_EQ(NodePtr<>(KAZConfigFactory::createNodeCfg(&written, nullptr))->toXml(), written);
    }
}

TEST_F(ExamplesTest, WaterNetworkIsAWholeTreeWhoseDisplayTextsFollowTheLanguage) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(readExample("language/en.xml")));
    const std::wstring text = readExample("water-network.xml");
    const long before = MemObject::liveCount();
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->toXml(), text) << "the literal texts and the IDs";
    const long nodes = MemObject::liveCount() - before;
    EXPECT_GT(nodes, 30);
    NodePtr<> copy(group->clone());
    EXPECT_EQ(MemObject::liveCount() - before, 2 * nodes) << "a copy holds as many objects";
    EXPECT_EQ(copy->toXml(), text);

    auto* hydrants = dynamic_cast<IUseFixedPresentationElementCfg*>(
        group->getPresentationElements()->getChild(0));
    ASSERT_NE(hydrants, nullptr);
    EXPECT_EQ(hydrants->getLabel(), L"Hydrants");
    EXPECT_EQ(hydrants->getDisplayLabel(), L"Fire hydrants");
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(
        L"<Language><S id=\"IDS_WATER_NETWORK\">Wassernetz</S></Language>"));
    EXPECT_EQ(group->getDisplayName(), L"Water network") << "resolved when the node was read";
    NodePtr<IPresentationGroupCfg> again(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    EXPECT_EQ(again->getDisplayName(), L"Wassernetz");
}

TEST_F(ExamplesTest, WaterNetworkResolvesItsReferencesFromTheElementFiles) {
    const std::wstring text = readExample("water-network.xml");
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    ASSERT_NE(group, nullptr);
    auto* list = group->getPresentationElements();
    ASSERT_EQ(list->resolveReferences(), 3u);
    const char* files[] = {"elements/pipes.xml", "elements/valves.xml"};
    for (unsigned int i = 0; i < 2; ++i) {
        auto* fixed = dynamic_cast<IUseFixedPresentationElementCfg*>(list->getChild(i + 1));
        ASSERT_NE(fixed, nullptr) << files[i];
        EXPECT_EQ(fixed->getPresentationElement()->toXml(), readExample(files[i]));
    }
    const std::wstring written = group->toXml();
    EXPECT_EQ(written.find(L"UseRefPresentationElement"), std::wstring::npos);
    EXPECT_EQ(NodePtr<>(KAZConfigFactory::createNodeCfg(&written, nullptr))->toXml(), written);
}

}  // namespace
