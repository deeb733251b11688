// The generic node: attributes, text and the values of its children.

#include "testsupport.h"

namespace {

using namespace kaztest;

NodePtr<IXNodeCfg> parseGeneric(const std::wstring& text) {
    return NodePtr<IXNodeCfg>(KAZConfigFactory::createXNodeCfg(&text, nullptr));
}

using XNodeTest = LeakCheckedTest;

TEST_F(XNodeTest, AttributesByPositionAndName) {
    auto node = parseGeneric(L"<r a=\"1\" b=\"2\"/>");
    EXPECT_EQ(node->getAttributeCount(), 2u);
    EXPECT_EQ(node->getAttributeName(1), L"b");
    EXPECT_EQ(node->getAttribute(0u), L"1");
    EXPECT_EQ(node->getAttribute(L"b"), L"2");
    node->setAttribute(0u, L"one");
    node->setAttribute(L"b", L"two");
    node->setAttribute(L"c", L"three");
    node->setAttributeName(0, L"first");
    EXPECT_TRUE(node->hasAttribute(L"first"));
    EXPECT_FALSE(node->hasAttribute(L"a"));
    EXPECT_EQ(node->toXml(), L"<r first=\"one\" b=\"two\" c=\"three\"></r>");
}

TEST_F(XNodeTest, TextIsReadDecodedAndAnEmptyNameWritesXNode) {
    auto node = parseGeneric(L"<r q='&quot;hi&quot;'>a &lt; b &amp; R&amp;D</r>");
    EXPECT_EQ(node->getText(), L"a < b & R&D");
    node->setName(L"");
    node->setText(L"");
    EXPECT_EQ(node->toXml(), L"<XNode q=\"&quot;hi&quot;\"></XNode>");
}

TEST_F(XNodeTest, ChildValuesAreReadFromTheLastChildOfThatName) {
    auto node = parseGeneric(
        L"<r><n>1</n><n> 42 </n><d>2.5e1</d><b>true</b><f>0</f><s> text </s><bad>4x</bad></r>");
    int number = 0;
    double real = 0;
    bool on = false, off = true;
    std::wstring text;
    node->getChildValue(L"n", number);
    node->getChildValue(L"d", real);
    node->getChildValue(L"b", on);
    node->getChildValue(L"f", off);
    node->getChildValue(L"s", text);
    EXPECT_EQ(number, 42);
    EXPECT_EQ(real, 25.0);
    EXPECT_TRUE(on);
    EXPECT_FALSE(off);
    EXPECT_EQ(text, L" text ");

    const auto unreadable = thrownChain([&] { node->getChildValue(L"bad", number); });
    ASSERT_EQ(unreadable.size(), 1u);
    EXPECT_EQ(unreadable[0].kind, IKAZException::Parsing);
    EXPECT_EQ(unreadable[0].message.rfind(L"Syntax error at : '", 0), 0u);
    EXPECT_EQ(number, 42);
}

}  // namespace
