// createXNodeCfg: any XML text as generic nodes, and its error chain.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IXNodeCfg;
using kaz::kazparser::KAZConfigFactory;

class XParserTest : public LeakCheckedTest {};

TEST_F(XParserTest, NullOrEmptyTextGivesNull) {
    const std::wstring empty;
    EXPECT_EQ(KAZConfigFactory::createXNodeCfg(nullptr, nullptr), nullptr);
    EXPECT_EQ(KAZConfigFactory::createXNodeCfg(&empty, nullptr), nullptr);
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
