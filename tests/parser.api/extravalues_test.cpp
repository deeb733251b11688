// Extra values: the element written back as read, values found by name.

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IExtraValuesConfigCfg;
using kaz::kazparser::KAZConfigFactory;

class ExtraValuesTest : public LeakCheckedTest {};

TEST_F(ExtraValuesTest, ValuesRoundTripAndAreFoundByTheirNames) {
    const std::wstring text =
        L"<ExtraValuesConfig><XValue name=\"w\" systemValue=\"true\"><UseDouble>2.5</UseDouble>"
        L"</XValue><XValue name=\"h\"></XValue><XValue name=\"w\" desc=\"2\"></XValue>"
        L"</ExtraValuesConfig>";
    NodePtr<IExtraValuesConfigCfg> values(
        KAZConfigFactory::createExtraValuesConfigCfg(&text, nullptr));
    NodePtr<IExtraValuesConfigCfg> copy(dynamic_cast<IExtraValuesConfigCfg*>(values->clone()));
    EXPECT_EQ(copy->toXml(), text);
    EXPECT_EQ(copy->getXValue(L"w"), copy->getXValue(2u)) << "the later of two names";
    EXPECT_EQ(copy->getXValue(L"h")->getParent(), copy.get());
    EXPECT_FALSE(copy->hasXValue(L"XValue")) << "names, not tags";
    const auto chain = thrownChain([&] { copy->getXValue(L"XValue"); });
    ASSERT_EQ(chain.size(), 1u);
    EXPECT_EQ(chain[0].message, L"XValue is not the name of child object");
}

}  // namespace
