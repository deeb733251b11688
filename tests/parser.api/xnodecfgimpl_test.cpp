// The generic node: list operations, attributes, text, values and writing.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IXNodeCfg;
using kaz::kazparser::KAZConfigFactory;

NodePtr<IXNodeCfg> parseGeneric(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<IXNodeCfg>(KAZConfigFactory::createXNodeCfg(&text, parent));
}

class XNodeTest : public LeakCheckedTest {};

TEST_F(XNodeTest, ListOperationsKeepOrderAndHandBackDetachedItems) {
    auto list = parseGeneric(L"<r><a/><b/><c/></r>");
    EXPECT_EQ(list->getCount(), 3u);
    EXPECT_EQ(list->getChildCount(), 3u);

    EXPECT_EQ(list->insert(parseGeneric(L"<x/>").release(), 1), 1u);
    EXPECT_EQ(list->getChild(1)->getParent(), list.get());
    EXPECT_EQ(list->toXml(), L"<r><a></a><x></x><b></b><c></c></r>");

    NodePtr<> removed(list->remove(0));
    EXPECT_EQ(removed->getName(), L"a");
    EXPECT_EQ(removed->getParent(), nullptr);
    EXPECT_EQ((*list)[0]->getName(), L"x");

    NodePtr<> replaced(list->replace(parseGeneric(L"<y/>").release(), 2));
    EXPECT_EQ(replaced->getName(), L"c");
    EXPECT_EQ(replaced->getParent(), nullptr);
    EXPECT_EQ(list->getChild(2)->getParent(), list.get());
    EXPECT_TRUE(list->setChild(parseGeneric(L"<z/>").release()));
    EXPECT_EQ(list->toXml(), L"<r><x></x><b></b><y></y><z></z></r>");

    const long live = MemObject::liveCount();
    list->deleteChildren();
    EXPECT_EQ(list->getCount(), 0u);
    EXPECT_EQ(MemObject::liveCount(), live - 4);
}

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
    expectError([&] { node->getAttribute(L"zz"); }, IKAZException::OutOfRange,
                L"zz is not the name of child object", L"XNodeCfgImpl::getAttribute");
    expectError([&] { node->setAttribute(3u, L"x"); }, IKAZException::OutOfRange,
                L"index 3 is out of range", L"XNodeCfgImpl::setAttribute");
}

TEST_F(XNodeTest, WritesEscapedAttributesAndTextWithStartAndEndTags) {
    auto node =
        parseGeneric(L"<r q='say \"hi\" &amp; it&apos;s'>a &lt; b &gt; c &amp; R&amp;D</r>");
    EXPECT_EQ(node->getText(), L"a < b > c & R&D");
    EXPECT_EQ(node->toXml(),
              L"<r q=\"say &quot;hi&quot; &amp; it's\">a &lt; b &gt; c &amp; R&amp;D</r>");
    node->setName(L"");
    node->setText(L"");
    EXPECT_EQ(node->toXml(), L"<XNode q=\"say &quot;hi&quot; &amp; it's\"></XNode>");
}

TEST_F(XNodeTest, ChildValuesAreReadFromTheLastChildOfThatName) {
    auto node = parseGeneric(
        L"<r><n>1</n><n> 42 </n><d>2.5e1</d><b>true</b><f>0</f><s> text </s><bad>4x</bad></r>");
    int number = 0;
    node->getChildValue(L"n", number);
    EXPECT_EQ(number, 42);
    double real = 0;
    node->getChildValue(L"d", real);
    EXPECT_EQ(real, 25.0);
    bool flag = false;
    node->getChildValue(L"b", flag);
    EXPECT_TRUE(flag);
    node->getChildValue(L"f", flag);
    EXPECT_FALSE(flag);
    std::wstring text;
    node->getChildValue(L"s", text);
    EXPECT_EQ(text, L" text ");

    const auto unreadable = thrownChain([&] { node->getChildValue(L"bad", number); });
    ASSERT_EQ(unreadable.size(), 1u);
    EXPECT_EQ(unreadable[0].kind, IKAZException::Parsing);
    EXPECT_EQ(unreadable[0].message.rfind(L"Syntax error at : '", 0), 0u);
    EXPECT_EQ(number, 42);
    expectError([&] { node->getChildValue(L"none", real); }, IKAZException::OutOfRange,
                L"none is not the name of child object", L"XNodeCfgImpl::getChildValue");
}

}  // namespace
