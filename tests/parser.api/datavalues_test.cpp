// Data values and references read by their factory forms: names, the table
// objects' reading errors, the markup a reference holds. Values per type are
// checked against the builder in builder_data_test.cpp.

#include "tableobj/TableobjFactory.h"
#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IUseDataCfg;
using kaz::kazparser::IUseRefDataCfg;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;
using tableobj::TableobjFactory;

NodePtr<IUseDataCfg> readData(IElement::ElementType type, const std::wstring& text,
                              INodeCfg* parent = nullptr) {
    return NodePtr<IUseDataCfg>(KAZConfigFactory::createUseDataCfg(type, &text, parent));
}

NodePtr<IUseRefDataCfg> readReference(IElement::ElementType type, const std::wstring& text,
                                      INodeCfg* parent = nullptr) {
    return NodePtr<IUseRefDataCfg>(KAZConfigFactory::createUseRefDataCfg(type, &text, parent));
}

class DataValueTest : public LeakCheckedTest {};

TEST_F(DataValueTest, NodesKeepTheDocumentElementNameUnlessTheTypeNamesIt) {
    struct Case {
        IElement::ElementType type;
        const wchar_t* text;
        const wchar_t* written;
    };
    const Case cases[] = {
        {IElement::Integer, L"<Held>5</Held>", L"<UseInteger>5</UseInteger>"},
        {IElement::Columns, L"<Held><Columns></Columns></Held>",
         L"<Held><Columns></Columns></Held>"},
        {static_cast<IElement::ElementType>(6), L"<Held>5</Held>", L"<Held></Held>"},
        {static_cast<IElement::ElementType>(7), L"<Held>5</Held>", L"<Held></Held>"},
        {IElement::Table, L"<UseTable> </UseTable>", L"<UseTable></UseTable>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        EXPECT_EQ(readData(c.type, c.text)->toXml(), c.written);
    }
    // Malformed text gives the empty node.
    auto holder = readData(IElement::Integer, L"<h>1</h>");
    EXPECT_EQ(readData(IElement::Double, L"<UseDouble>1", holder.get())->toXml(),
              L"<UseData></UseData>");
    auto reference = readReference(IElement::Double, L"<UseDouble>1", holder.get());
    EXPECT_EQ(reference->toXml(), L"<UseData></UseData>");
    EXPECT_EQ(reference->getParent(), holder.get());
}

TEST_F(DataValueTest, TablesThatCannotBeReadRaiseWhyAndFreeWhatWasRead) {
    struct Case {
        IElement::ElementType type;
        const wchar_t* content;
        const wchar_t* message;
        const wchar_t* method;
    };
    const Case cases[] = {
        {IElement::Column, L"<Column name=\"W\" datatype=\"float\"><Row>1</Row></Column>",
         L"<Column name=\"W\">: unknown datatype \"float\"", L"readColumn"},
        {IElement::Table,
         L"<Table name=\"T\"><Column name=\"A\" datatype=\"integer\"><Row>1</Row><Row>2</Row>"
         L"</Column><Column name=\"B\" datatype=\"integer\"><Row>1</Row></Column></Table>",
         L"<Table name=\"T\">: <Column name=\"B\"> has 1 Row values, the columns before it 2",
         L"readTable"},
        {IElement::Column, L"<Column datatype=\"integer\"><Row>1</Row><Row>1.5</Row></Column>",
         L"<Column>: \"1.5\" is not a value of datatype \"integer\"", L"readColumn"},
        {IElement::Column, L"<Column datatype=\"double\"><Row>x</Row></Column>",
         L"<Column>: \"x\" is not a value of datatype \"double\"", L"readColumn"},
        {IElement::Column, L"<Column datatype=\"boolean\"><Row>yes</Row></Column>",
         L"<Column>: \"yes\" is not a value of datatype \"boolean\"", L"readColumn"},
        {IElement::Column, L"<Column datatype=\"string\"><Row><b/></Row></Column>",
         L"<Row>: a value holds no element", L"readColumn"},
        {IElement::Column, L"<Column datatype=\"string\">text</Column>",
         L"<Column>: unexpected text \"text\"", L"readColumn"},
        {IElement::Column, L"<Table name=\"T\"></Table>", L"<Table name=\"T\">: expected <Column>",
         L"readColumn"},
        {IElement::Table,
         L"<Table><Properties><Property name=\"p\" datatype=\"integer\">one</Property></Properties>"
         L"</Table>",
         L"<Property name=\"p\">: \"one\" is not a value of datatype \"integer\"", L"readTable"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.content)));
        const std::wstring text = L"<Held>" + std::wstring(c.content) + L"</Held>";
        const auto chain = thrownChain([&] { readData(c.type, text); });
        ASSERT_EQ(chain.size(), 1u);
        EXPECT_EQ(chain[0].kind, IKAZException::InvalidData);
        EXPECT_EQ(chain[0].message, c.message);
        EXPECT_EQ(methodOf(chain[0].context),
                  L"kaz::kazparser::tablereader::" + std::wstring(c.method));
    }
}

TEST_F(DataValueTest, ReferencesHoldTheMarkupOfTheFirstChildWhateverTheType) {
    struct Case {
        const wchar_t* text;
        const wchar_t* name;
        const wchar_t* reference;
    };
    const Case cases[] = {
        {L"<UseXValue>Lane.Width</UseXValue>", L"UseXValue", L"Lane.Width"},
        {L"<UseData>R&amp;D&#13;<![CDATA[<x>]]>!<b/></UseData>", L"UseData",
         L"R&amp;D&#13;&lt;x&gt;!"},
        {L"<Ref><!--c--><Ref k=\"&quot;a&#9;b&quot;\">x<i/></Ref>tail</Ref>", L"Ref",
         L"<Ref k=\"&quot;a&#9;b&quot;\">x<i></i></Ref>"},
        {L"<UseData/>", L"UseData", L""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.text)));
        const std::wstring name = c.name;
        for (auto type : {IElement::Boolean, IElement::Table, IElement::NoValue}) {
            auto node = readReference(type, c.text);
            EXPECT_EQ(node->getReference(), c.reference);
            EXPECT_EQ(node->getName(), name);
            EXPECT_EQ(node->getDataType(), IElement::NoValue);
            // What it writes reads back to the same reference.
            EXPECT_EQ(readReference(type, node->toXml())->getReference(), c.reference);
        }
    }
}

}  // namespace
