// The tree builders: error chains, shown platform errors with partial
// results, security limits, the root-directory macro, source positions, and
// freeing on every path.

#include "environmentadapter/IEnvironmentAdapter.h"
#include "testsupport.h"

namespace {

using namespace kaztest;

NodePtr<> build(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<>(KAZConfigFactory::createNodeCfg(&text, parent));
}

using BuilderTest = LeakCheckedTest;
using XParserTest = BuilderTest;

TEST_F(BuilderTest, NullOrEmptyTextGivesNullInBothBuilders) {
    const std::wstring empty;
    for (const std::wstring* text : {static_cast<const std::wstring*>(nullptr), &empty}) {
        EXPECT_EQ(KAZConfigFactory::createNodeCfg(text, nullptr), nullptr);
        EXPECT_EQ(KAZConfigFactory::createXNodeCfg(text, nullptr), nullptr);
    }
}

// Elements of no kind in their place, and values that cannot be read.
TEST_F(BuilderTest, ElementsThatMakeNoNodeEndInTheThreeLevelChain) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"<Root><Tables><x/></Tables><Column/></Root>",
         L"\nCan not create <Tables>\n\nCan not create <Column>\n"},
        {L"<Holder><Column datatype=\"integer\"/></Holder>", L"\nCan not create <Column>\n"},
        {L"<Holder><UseColumn><Column name=\"W\" datatype=\"float\"><Row>1</Row></Column>"
         L"</UseColumn></Holder>",
         L"\nexception occorred at <UseColumn>\n<Column name=\"W\">: unknown datatype \"float\""},
        {L"<UseTables><Tables><Table><Column datatype=\"integer\"><Row>x</Row></Column></Table>"
         L"</Tables></UseTables>",
         L"\nexception occorred at <UseTables>\n<Column>: \"x\" is not a value of datatype "
         L"\"integer\""},
    };
    for (const auto& [text, reason] : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(text)));
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
        EXPECT_EQ(chain[2].message, L"Syntax error at :'" + std::wstring(reason) + L"'");
    }

    // Without a root node every child ends as a root of its own; none is kept.
    MessageCapture quiet;
    EXPECT_EQ(thrownChain([&] { build(L"<Column><a/><b/><c/></Column>"); }).size(), 3u);
    EXPECT_EQ(build(L"<Column><a/><b/>")->toXml(), L"<b></b>");  // malformed: what ended last
}

// Malformed and refused texts are shown, not thrown; a malformed text gives
// the element that ended last.
TEST_F(BuilderTest, MalformedOrRefusedTextIsShownAndGivesWhatEndedLast) {
    const struct {
        std::wstring text;
        const wchar_t* shown;
        const wchar_t* lastEnded;  // null: no element ended
    } cases[] = {
        {L"<a><b k=\"v\"><c/></b><d>", L"", L"<b k=\"v\"><c></c></b>"},
        {L"<a></b>", L"", nullptr},
        {L"<a/><b/>", L"", L"<a></a>"},
        {L"<a>&undefined;</a>", L"", nullptr},
        {L"<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>",
         L"document type declarations are not allowed", nullptr},
        {L"<a><x:b/></a>", L"Namespace prefix x on b is not defined", nullptr},
        {L"<?xml version=\"1.1\"?><a/>", L"Unsupported version '1.1'", nullptr},
    };
    auto holder = build(L"<holder/>");
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.text));
        MessageCapture capture;
        auto result = build(c.text, holder.get());
        ASSERT_EQ(capture.messages().size(), 2u);
        const auto& [caption, shown] = capture.messages()[0];
        EXPECT_EQ(caption, L"ErrorMessage");
        EXPECT_NE(shown.find(L"\nError : "), std::wstring::npos);
        EXPECT_NE(shown.find(L"\nLine : 1\nCharacter : "), std::wstring::npos);
        EXPECT_NE(shown.find(c.shown), std::wstring::npos);
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

TEST_F(BuilderTest, TwoHundredFiftySixLevelsLoad) {
    std::wstring text;
    for (int i = 0; i < 256; ++i) text.insert(3 * i, L"<e></e>");
    auto root = build(text);
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
    const std::wstring texts[] = {
        L"<r a=\"1\"><b><c/></b><d/></r>",
        L"<r><Tables/></r>",
        L"<r><b></r>",
        L"<Holder><UseTables><Tables><Table><Properties><Property name=\"p\" datatype=\"integer\">1"
        L"</Property></Properties><Column datatype=\"string\"><Row>a</Row></Column></Table>"
        L"</Tables></UseTables><UseData>x<y/></UseData><UseDouble>1</UseDouble></Holder>",
        L"<Holder><UseTable><Table><Column datatype=\"bad\"/></Table></UseTable></Holder>",
        // A refused duplicate feature too.
        L"<Holder><Features><A k=\"v\">x<n/></A><A/><B>y</B></Features></Holder>",
    };
    MessageCapture quiet;
    for (const std::wstring& text : texts) {
        expectNothingLeaksUnderAllocationFailures(
            [&] { NodePtr<> root(KAZConfigFactory::createNodeCfg(&text, nullptr)); });
    }
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
