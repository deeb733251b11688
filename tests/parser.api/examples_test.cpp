// The shipped example configurations: each reads to the kind its root
// element names and writes back exactly as it is stored; the file
// references of the water network resolve to the element files beside it.

#include <cwctype>
#include <map>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IPresentationGroupCfg;
using kaz::kazparser::IUseFixedPresentationElementCfg;
using kaz::kazparser::KAZConfigFactory;

// The file's text without the line break that ends it.
std::wstring readExample(const char* name) {
    std::wstring text = readFile(examplesDirectory() / name);
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r')) text.pop_back();
    return text;
}

const char* const kExamples[] = {"label-presentation.xml", "table-presentation.xml",
                                 "water-network.xml", "elements/pipes.xml", "elements/valves.xml"};

// The place of every start tag in `text` and the element name it opens,
// found by scanning the text: (line, column) -> name.
std::map<std::pair<unsigned, unsigned>, std::wstring> startTags(const std::wstring& text) {
    std::map<std::pair<unsigned, unsigned>, std::wstring> tags;
    unsigned line = 1, column = 1;
    for (std::size_t i = 0; i < text.size(); ++i, ++column) {
        if (text[i] == L'\n') {
            ++line;
            column = 0;
        } else if (text[i] == L'<' && i + 1 < text.size() && std::iswalpha(text[i + 1])) {
            const std::size_t end = text.find_first_of(L" />", i);
            tags[{line, column}] = text.substr(i + 1, end - i - 1);
        }
    }
    return tags;
}

// The tag `node` writes itself under.
std::wstring tagOf(const INodeCfg& node) {
    const std::wstring& xml = node.toXml();
    return xml.substr(1, xml.find_first_of(L" >") - 1);
}

// Checks that `node` and all below it stand at a start tag of their own
// element in `tags`; counts the nodes checked by kind.
void expectAtTheirStartTags(const INodeCfg& node,
                            const std::map<std::pair<unsigned, unsigned>, std::wstring>& tags,
                            std::map<INodeCfg::NodeType, int>& checked) {
    const auto where = kaz::kazparser::sourceLocation(&node);
    ASSERT_TRUE(where.has_value()) << tagOf(node);
    const auto tag = tags.find({where->line, where->column});
    ASSERT_NE(tag, tags.end()) << tagOf(node) << " at " << where->line << ":" << where->column;
    EXPECT_EQ(tag->second, tagOf(node));
    ++checked[node.getNodeType()];
    for (unsigned int i = 0; i < node.getChildCount(); ++i)
        expectAtTheirStartTags(*node.getChild(i), tags, checked);
}

using ExamplesTest = ExamplesRootTest;

TEST_F(ExamplesTest, EveryNodeIsLocatedAtItsOwnStartTag) {
    std::map<INodeCfg::NodeType, int> checked;
    for (const char* file : kExamples) {
        SCOPED_TRACE(file);
        // Laid over several lines: a line break before every element in the
        // group's list, and characters of several bytes before some.
        std::wstring text = readExample(file);
        for (std::size_t at = text.find(L"<Use"); at != std::wstring::npos;
             at = text.find(L"<Use", at + 8))
            text.insert(at, at % 2 ? L"\n" : L"\u00e9\n\u4e2d");
        NodePtr<> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
        ASSERT_NE(root, nullptr);
        expectAtTheirStartTags(*root, startTags(text), checked);
        NodePtr<> copy(root->clone());
        expectAtTheirStartTags(*copy, startTags(text), checked);
    }
    EXPECT_GE(checked.size(), 20u) << "kinds";
    for (const auto& [kind, count] : checked) EXPECT_GE(count, 2) << "kind " << kind;
}

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
        EXPECT_EQ(node->toXml(), text);
    }
}

TEST_F(ExamplesTest, WaterNetworkIsAWholeTreeWhoseDisplayTextsFollowTheLanguage) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(readExample("language/en.xml")));
    const std::wstring text = readExample("water-network.xml");
    const long before = MemObject::liveCount();
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    ASSERT_NE(group, nullptr);
    const long nodes = MemObject::liveCount() - before;
    EXPECT_GT(nodes, 30);
    NodePtr<> copy(group->clone());
    EXPECT_EQ(MemObject::liveCount() - before, 2 * nodes) << "a copy holds as many objects";

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
    // The fixed references stand where the file references stood; what
    // they hold answers places in its own file.
    for (const char* file : {"elements/pipes.xml", "elements/valves.xml"}) {
        const auto& fixed = *list->getChild(file[9] == 'p' ? 1 : 2);
        const auto where = kaz::kazparser::sourceLocation(&fixed);
        ASSERT_TRUE(where.has_value());
        EXPECT_EQ(text.substr(where->column - 1, 26), L"<UseRefPresentationElement");
        std::map<INodeCfg::NodeType, int> checked;
        expectAtTheirStartTags(*fixed.getChild(fixed.getChildCount() - 1),
                               startTags(readExample(file)), checked);
    }
    EXPECT_EQ(group->toXml().find(L"UseRefPresentationElement"), std::wstring::npos);
}

}  // namespace
