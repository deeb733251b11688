// Table values that cannot be read: the table objects' reading errors.

#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;
using DataValueTest = LeakCheckedTest;

TEST_F(DataValueTest, TablesThatCannotBeReadRaiseWhyAndFreeWhatWasRead) {
    const struct {
        IElement::ElementType type;
        const wchar_t* content;
        const wchar_t* message;
        const wchar_t* method;
    } cases[] = {
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
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.content)));
        const std::wstring text = L"<Held>" + std::wstring(c.content) + L"</Held>";
        const auto chain = thrownChain(
            [&] { NodePtr<>(KAZConfigFactory::createUseDataCfg(c.type, &text, nullptr)); });
        ASSERT_EQ(chain.size(), 1u);
        EXPECT_EQ(chain[0].kind, IKAZException::InvalidData);
        EXPECT_EQ(chain[0].message, c.message);
        EXPECT_EQ(methodOf(chain[0].context),
                  L"kaz::kazparser::tablereader::" + std::wstring(c.method));
    }
}

}  // namespace
