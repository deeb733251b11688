// The tree builders behind createNodeCfg and createXNodeCfg: dispatch, error
// chains, shown platform errors with partial results, security limits, the
// root-directory macro, and freeing on every path.

#include "environmentadapter/IEnvironmentAdapter.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IXNodeCfg;
using kaz::kazparser::KAZConfigFactory;

NodePtr<> build(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<>(KAZConfigFactory::createNodeCfg(&text, parent));
}

std::wstring nested(int depth) {
    std::wstring text;
    for (int i = 0; i < depth; ++i) text += L"<e>";
    for (int i = 0; i < depth; ++i) text += L"</e>";
    return text;
}

class BuilderTest : public LeakCheckedTest {};
using XParserTest = BuilderTest;

TEST_F(BuilderTest, NullOrEmptyTextGivesNullInBothBuilders) {
    const std::wstring empty;
    for (const std::wstring* text : {static_cast<const std::wstring*>(nullptr), &empty}) {
        EXPECT_EQ(KAZConfigFactory::createNodeCfg(text, nullptr), nullptr);
        EXPECT_EQ(KAZConfigFactory::createXNodeCfg(text, nullptr), nullptr);
    }
}

TEST_F(BuilderTest, ElementsOfNoKnownKindBecomeGenericNodes) {
    auto holder = build(L"<holder/>");
    auto root = build(L"<Root a=\"1\"><Child b=\"2\"><Leaf/></Child><Other/></Root>", holder.get());
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->getNodeType(), INodeCfg::XNode);
    EXPECT_EQ(root->getParent(), holder.get());
    ASSERT_EQ(root->getChildCount(), 2u);
    EXPECT_EQ(root->getChild(0)->getParent(), root.get());
    EXPECT_EQ(root->getChild(0)->getChild(0)->getNodeType(), INodeCfg::XNode);
    EXPECT_EQ(root->toXml(),
              L"<Root a=\"1\"><Child b=\"2\"><Leaf></Leaf></Child><Other></Other></Root>");
}

TEST_F(BuilderTest, ElementsThatMakeNoNodeEndInTheThreeLevelChain) {
    const std::wstring text = L"<Root><Tables><x/></Tables><Column/></Root>";
    const auto chain = thrownChain([&] { build(text); });
    ASSERT_EQ(chain.size(), 3u);
    for (const auto& level : chain) {
        EXPECT_EQ(level.kind, IKAZException::Parsing);
        EXPECT_EQ(methodOf(level.context), L"kaz::kazparser::KAZConfigFactory::createNodeCfg");
        EXPECT_NE(level.context.find(L"\t[file] "), std::wstring::npos);
        EXPECT_NE(level.context.find(L"\n\t[line] "), std::wstring::npos);
    }
    EXPECT_EQ(chain[0].message, L"Configure invalid at 'createNodeCfg'");
    EXPECT_EQ(chain[1].message, L"Syntax error at :'Error on createNodeCfg :\n'");
    EXPECT_EQ(chain[2].message,
              L"Syntax error at :'\nCan not create <Tables>\n\nCan not create <Column>\n'");

    // Without a root node every child ends as a root of its own; none is kept.
    MessageCapture quiet;
    EXPECT_EQ(thrownChain([&] { build(L"<Column><a/><b/><c/></Column>"); }).size(), 3u);
    EXPECT_EQ(build(L"<Column><a/><b/>")->toXml(), L"<b></b>");  // malformed: what ended last
}

TEST_F(BuilderTest, MalformedTextIsShownAndGivesWhatEndedLast) {
    struct Case {
        const wchar_t* text;
        const wchar_t* lastEnded;  // null: no element ended
    };
    const Case cases[] = {
        {L"<a><b k=\"v\"><c/></b><d>", L"<b k=\"v\"><c></c></b>"},
        {L"<a></b>", nullptr},
        {L"<a/><b/>", L"<a></a>"},
        {L"<a>&undefined;</a>", nullptr},
    };
    auto holder = build(L"<holder/>");
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        MessageCapture capture;
        auto result = build(c.text, holder.get());
        ASSERT_EQ(capture.messages().size(), 2u);
        EXPECT_EQ(capture.messages()[0].first, L"ErrorMessage");
        EXPECT_NE(capture.messages()[0].second.find(L"\nError : "), std::wstring::npos);
        EXPECT_NE(capture.messages()[0].second.find(L"\nLine : 1\nCharacter : "),
                  std::wstring::npos);
        EXPECT_EQ(capture.messages()[1],
                  std::make_pair(std::wstring(L"Source"), std::wstring(L"kaz::xml::SAXXMLReader")));
        if (c.lastEnded == nullptr) {
            EXPECT_EQ(result, nullptr);
        } else {
            ASSERT_NE(result, nullptr);
            EXPECT_EQ(result->toXml(), c.lastEnded);
            EXPECT_EQ(result->getParent(), holder.get());
        }
    }
}

TEST_F(BuilderTest, RefusedTextsAreShownNotThrown) {
    struct Case {
        std::wstring text;
        const wchar_t* reason;
    };
    const Case cases[] = {
        {L"<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>",
         L"document type declarations are not allowed"},
        {L"<a><x:b/></a>", L"Namespace prefix x on b is not defined"},
        {L"<?xml version=\"1.1\"?><a/>", L"Unsupported version '1.1'"},
    };
    for (const Case& c : cases) {
        MessageCapture capture;
        EXPECT_EQ(build(c.text), nullptr);
        ASSERT_EQ(capture.messages().size(), 2u);
        EXPECT_NE(capture.messages()[0].second.find(c.reason), std::wstring::npos);
    }
}

TEST_F(BuilderTest, TwoHundredFiftySixLevelsLoad) {
    auto root = build(nested(256));
    ASSERT_NE(root, nullptr);
    int depth = 1;
    for (const INodeCfg* node = root.get(); node->getChildCount() == 1; node = node->getChild(0))
        ++depth;
    EXPECT_EQ(depth, 256);
}

TEST_F(BuilderTest, RootDirectoryMacroIsReplacedInAttributeValues) {
    auto& environment = kaz::environmentadapter::IEnvironmentAdapter::getInstance();
    environment.setRootDirectory(L"/opt/kaz");
    auto root = build(
        L"<a p=\"[Kestrelon.RootDirectory]/x;[Kestrelon.RootDirectory]\" q=\"[Kestrelon.Root]\"/>");
    environment.resetRootDirectory();
    auto* node = dynamic_cast<IXNodeCfg*>(root.get());
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->getAttribute(L"p"), L"/opt/kaz/x;/opt/kaz");
    EXPECT_EQ(node->getAttribute(L"q"), L"[Kestrelon.Root]");

    std::wstring many, replaced;
    for (int i = 0; i < 100000; ++i) {
        many += L"[Kestrelon.RootDirectory];";
        replaced += L"/opt/kaz;";
    }
    environment.setRootDirectory(L"/opt/kaz");
    root = build(L"<a p=\"" + many + L"\"/>");
    environment.resetRootDirectory();
    EXPECT_EQ(dynamic_cast<IXNodeCfg&>(*root).getAttribute(L"p"), replaced);
}

// libxml2 cuts text about every 300 bytes once it holds a non-ASCII
// character, and at the reader's 64 KiB chunks: a macro cut in two is still
// replaced, in every kind that keeps text.
TEST_F(BuilderTest, RootDirectoryMacroIsReplacedInTextArrivingInPieces) {
    const std::wstring macro = L"[Kestrelon.RootDirectory]";
    const std::wstring nonAscii = L"\u00e9" + std::wstring(290, L'x') + macro;
    const std::wstring atChunkEnd = std::wstring(65536 - 30, L'x') + macro;
    const std::wstring wrappers[][2] = {
        {L"<Features><F>", L"</F></Features>"},        {L"<UseString>", L"</UseString>"},
        {L"<UseExpression>", L"</UseExpression>"},     {L"<UseData>", L"</UseData>"},
        {L"<SampleRefResult>", L"</SampleRefResult>"},
    };
    auto& environment = kaz::environmentadapter::IEnvironmentAdapter::getInstance();
    environment.setRootDirectory(L"/opt/kaz");
    for (const auto& [open, close] : wrappers) {
        for (const std::wstring& content : {nonAscii, atChunkEnd}) {
            SCOPED_TRACE(testing::PrintToString(open));
            const std::wstring written = build(open + content + close)->toXml();
            EXPECT_EQ(written.find(macro), std::wstring::npos);
            EXPECT_NE(written.find(L"x/opt/kaz"), std::wstring::npos);
        }
    }
    environment.resetRootDirectory();
}

TEST_F(BuilderTest, NodesReadFromTextKnowWhereTheyStart) {
    using kaz::kazparser::SourceLocation;
    using kaz::kazparser::sourceLocation;
    const std::wstring text =
        L"<Root>\r\n  <ParamSets>\u00e9<ParamSet name=\"s\"/></ParamSets>\n"
        L"<UseEngine><UseExpression>x</UseExpression></UseEngine></Root>";
    auto root = build(text);
    EXPECT_EQ(sourceLocation(root.get()), (SourceLocation{1, 1}));
    EXPECT_EQ(sourceLocation(root->getChild(0)->getChild(0)), (SourceLocation{2, 15}));
    NodePtr<> generic(KAZConfigFactory::createXNodeCfg(&text, nullptr));
    EXPECT_EQ(sourceLocation(generic->getChild(1)), (SourceLocation{3, 1}));
    // The form that takes the first element of a name counts in the whole text.
    NodePtr<> engine(KAZConfigFactory::createUseEngineCfg(&text, nullptr));
    EXPECT_EQ(sourceLocation(engine.get()), (SourceLocation{3, 1}));

    NodePtr<> made(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr));
    EXPECT_EQ(sourceLocation(made.get()), std::nullopt);
    EXPECT_EQ(sourceLocation(nullptr), std::nullopt);
}

TEST_F(BuilderTest, FailedAllocationsAtAnyPointFreeEverything) {
    const std::wstring texts[] = {L"<r a=\"1\"><b><c/></b><d/></r>", L"<r><Tables/></r>",
                                  L"<r><b></r>"};
    MessageCapture quiet;
    for (const std::wstring& text : texts) {
        expectNothingLeaksUnderAllocationFailures(
            [&] { NodePtr<> root(KAZConfigFactory::createNodeCfg(&text, nullptr)); });
    }
}

TEST_F(XParserTest, EveryElementBecomesGenericWithItsTextAndAttributes) {
    const std::wstring text =
        L"<ParamSets a=\"1\">\n  <ParamSet>x<![CDATA[<y>]]>z</ParamSet>\n  <Tables/>\n</ParamSets>";
    auto parent = NodePtr<IXNodeCfg>(KAZConfigFactory::createXNodeCfg(&text, nullptr));
    NodePtr<IXNodeCfg> root(KAZConfigFactory::createXNodeCfg(&text, parent.get()));
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->getParent(), parent.get());
    EXPECT_EQ(root->getNodeType(), INodeCfg::XNode);
    EXPECT_EQ(root->getText(), L"") << "indentation between child elements is not content";
    auto* set = dynamic_cast<IXNodeCfg*>(root->getChild(0));
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(set->getText(), L"x<y>z");
    EXPECT_EQ(root->toXml(),
              L"<ParamSets a=\"1\"><ParamSet>x&lt;y&gt;z</ParamSet><Tables></Tables></ParamSets>");
}

TEST_F(XParserTest, MalformedTextRaisesTheWrappedSyntaxError) {
    const std::wstring text = L"<a>\n<b></a>";
    const auto chain = thrownChain([&] { KAZConfigFactory::createXNodeCfg(&text, nullptr); });
    ASSERT_EQ(chain.size(), 2u);
    EXPECT_EQ(chain[0].kind, IKAZException::Parsing);
    EXPECT_EQ(chain[0].message, L"Configure invalid at 'createXNodeCfg'");
    EXPECT_EQ(methodOf(chain[0].context), L"kaz::kazparser::KAZConfigFactory::createXNodeCfg");
    EXPECT_EQ(chain[1].message.rfind(L"Syntax error at :'line 2, column ", 0), 0u)
        << testing::PrintToString(chain[1].message);
}

}  // namespace
