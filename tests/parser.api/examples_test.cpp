// The shipped examples: each reads to the kind its root names and writes back
// as stored, every node at its own start tag; the water network's file
// references resolve to the element files.

#include <cwctype>
#include <map>

#include "testsupport.h"

namespace {

using namespace kaztest;

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
    const auto where = sourceLocation(&node);
    ASSERT_TRUE(where.has_value()) << tagOf(node);
    const auto tag = tags.find({where->line, where->column});
    ASSERT_NE(tag, tags.end()) << tagOf(node) << " at " << where->line << ":" << where->column;
    EXPECT_EQ(tag->second, tagOf(node));
    ++checked[node.getNodeType()];
    for (unsigned int i = 0; i < node.getChildCount(); ++i)
        expectAtTheirStartTags(*node.getChild(i), tags, checked);
}

using ExamplesTest = ExamplesRootTest;

// Each reads to the kind its root element names and writes back exactly as
// it is stored; laid over several lines (a line break before every element
// in the group's list, and characters of several bytes before some), every
// node of it and of its copy stands at its own start tag.
TEST_F(ExamplesTest, EveryConfigurationWritesBackAndIsLocatedAtItsStartTags) {
    std::map<INodeCfg::NodeType, int> checked;
    for (const char* file : kExamples) {
        SCOPED_TRACE(file);
        std::wstring text = readExample(file);
        NodePtr<> stored(KAZConfigFactory::createNodeCfg(&text, nullptr));
        ASSERT_NE(stored, nullptr);
        EXPECT_EQ(stored->getNodeType(), std::string_view(file).starts_with("elements/")
                                             ? INodeCfg::PresentationElement
                                             : INodeCfg::PresentationGroup);
        EXPECT_EQ(stored->toXml(), text);
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

TEST_F(ExamplesTest, DisplayTextsFollowTheLanguageWhenTheNodeIsRead) {
    ASSERT_TRUE(KAZConfigFactory::setWorkingLanguageResource(readExample("language/en.xml")));
    const std::wstring text = readExample("water-network.xml");
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    ASSERT_NE(group, nullptr);

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

// The fixed references stand where the file references stood, with their
// attributes, parameters and display texts; what they hold is the element
// file's, and answers places in it. A fixed reference stays.
TEST_F(ExamplesTest, WaterNetworkResolvesItsReferencesFromTheElementFiles) {
    const std::wstring text = readExample("water-network.xml");
    NodePtr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&text, nullptr));
    ASSERT_NE(group, nullptr);
    auto* list = group->getPresentationElements();
    INodeCfg* hydrants = list->getChild(0);
    dynamic_cast<IUsePresentationElementCfg*>(list->getChild(1))->setDisplayLabel(L"shown");
    ASSERT_EQ(list->resolveReferences(), 3u);
    EXPECT_EQ(list->getChild(0), hydrants);
    for (const char* file : {"elements/pipes.xml", "elements/valves.xml"}) {
        auto* fixed =
            dynamic_cast<IUseFixedPresentationElementCfg*>(list->getChild(file[9] == 'p' ? 1 : 2));
        ASSERT_NE(fixed, nullptr) << file;
        EXPECT_EQ(fixed->getPresentationElement()->toXml(), readExample(file));
        EXPECT_EQ(fixed->getParent(), group.get()) << "the new entry reports the list's parent";
        EXPECT_EQ(fixed->getPresentationElement()->getParent(), fixed);
        const auto where = sourceLocation(fixed);
        ASSERT_TRUE(where.has_value());
        EXPECT_EQ(text.substr(where->column - 1, 26), L"<UseRefPresentationElement");
        std::map<INodeCfg::NodeType, int> checked;
        expectAtTheirStartTags(*fixed->getPresentationElement(), startTags(readExample(file)),
                               checked);
    }
    auto* pipes = dynamic_cast<IUseFixedPresentationElementCfg*>(list->getChild(1));
    EXPECT_EQ(pipes->getDisplayLabel(), L"shown");
    EXPECT_EQ(
        pipes->toXml(),
        L"<UseFixedPresentationElement elemID=\"pipes\" active=\"true\" refMainData=\"Pipes\" "
        L"label=\"Pipes\" labelStringID=\"IDS_PIPES\" desc=\"Pipe labels\" "
        L"descStringID=\"IDS_PIPES_DESC\"><ExtParams><ExtParam name=\"MinDiameter\" "
        L"desc=\"Smallest diameter shown, in mm\"><UseInteger>100</UseInteger></ExtParam>"
        L"</ExtParams>" +
            readExample("elements/pipes.xml") + L"</UseFixedPresentationElement>");
    EXPECT_EQ(group->toXml().find(L"UseRefPresentationElement"), std::wstring::npos);
}

}  // namespace
