// The data-child family (extension parameters, values, parameters): the
// child rules where the three kinds differ, and the attributes and writing
// of parameters and values.

#include <functional>

#include "testsupport.h"

namespace {

using namespace kaztest;
using kaz::kazparser::IDataCfg;
using kaz::kazparser::IExtParamCfg;
using kaz::kazparser::IParamCfg;
using kaz::kazparser::IXValueCfg;
using kaz::kazparser::KAZConfigFactory;
using tableobj::IElement;

IDataCfg* newDouble() {
    const std::wstring text = L"<UseDouble>2.5</UseDouble>";
    return KAZConfigFactory::createUseDataCfg(IElement::Double, &text, nullptr);
}

NodePtr<IParamCfg> readParam(const std::wstring& text, INodeCfg* parent = nullptr) {
    return NodePtr<IParamCfg>(KAZConfigFactory::createParamCfg(&text, parent));
}

NodePtr<IXValueCfg> readValue(const std::wstring& text) {
    return NodePtr<IXValueCfg>(KAZConfigFactory::createXValueCfg(&text, nullptr));
}

// Where the kinds of the family differ.
struct Kind {
    const char* label;
    std::function<IExtParamCfg*()> make;
    std::wstring className;
    bool adoptsData;           // data it takes gets it as parent
    bool takesAnyNode;         // setChild takes nodes that are not data
    std::wstring setDataNull;  // where a null setData raises; empty: it clears
};

const std::vector<Kind> kKinds = {
    {"ExtParam", [] { return KAZConfigFactory::createExtParamCfg(nullptr, nullptr); },
     L"ExtParamCfgImpl::", true, false, L"setData"},
    {"XValue", [] { return KAZConfigFactory::createXValueCfg(nullptr, nullptr); },
     L"XValueCfgImpl::", false, false, L"setChild"},
    {"Param", [] { return KAZConfigFactory::createParamCfg(nullptr, nullptr); }, L"ParamCfgImpl::",
     true, true, L""},
};

class ParamTest : public LeakCheckedTest {};

TEST_F(ParamTest, TheDataIsTheOnlyChild) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.label);
        NodePtr<IExtParamCfg> node(kind.make());
        EXPECT_EQ(node->getDataType(), IElement::NoValue);
        EXPECT_EQ(node->releaseData(), nullptr);
        node->setData(newDouble());
        EXPECT_EQ(node->getChildCount(), 1u);
        EXPECT_EQ(node->getChild(0), node->getData());
        EXPECT_EQ(node->getDataType(), IElement::Double);
    }
}

TEST_F(ParamTest, TakingDataDeletesThePreviousChildAndParentsAsTheKindDoes) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.label);
        NodePtr<IExtParamCfg> node(kind.make());
        const long empty = MemObject::liveCount();
        IDataCfg* viaSetChild = newDouble();
        IDataCfg* viaSetData = newDouble();
        const long live = MemObject::liveCount();
        node->setData(newDouble());
        EXPECT_TRUE(node->setChild(viaSetChild));
        node->setData(viaSetData);
        EXPECT_EQ(MemObject::liveCount(), empty + (live - empty) / 2)
            << "only the last data is left";
        EXPECT_EQ(viaSetData->getParent(), kind.adoptsData ? node.get() : nullptr);

        expectError([&] { node->setChild(nullptr); }, IKAZException::InvalidData,
                    L"Invalid argument", kind.className + L"setChild");
        NodePtr<> generic(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr));
        if (kind.takesAnyNode) {
            EXPECT_TRUE(node->setChild(generic.get()));
            EXPECT_EQ(node->getChild(0), generic.release());
            EXPECT_EQ(node->getChild(0)->getParent(), node.get());
            EXPECT_EQ(node->getData(), nullptr);
            EXPECT_EQ(node->getDataType(), IElement::NoValue);
            EXPECT_EQ(node->releaseData(), nullptr) << "nothing to hand back as data";
        } else {
            expectError([&] { node->setChild(generic.get()); }, IKAZException::InvalidData,
                        L"Invalid argument", kind.className + L"setChild");
            EXPECT_EQ(generic->getParent(), nullptr);
        }
        if (kind.setDataNull.empty()) {
            node->setData(nullptr);
            EXPECT_EQ(MemObject::liveCount(), empty);
        } else {
            expectError([&] { node->setData(nullptr); }, IKAZException::InvalidData,
                        L"Invalid argument", kind.className + kind.setDataNull);
            EXPECT_EQ(node->getData(), viaSetData);
        }
    }
}

TEST_F(ParamTest, ReplaceAndReleaseHandTheDataBackDetached) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.label);
        NodePtr<IExtParamCfg> node(kind.make());
        expectError([&] { node->replaceData(nullptr); }, IKAZException::InvalidData,
                    L"Invalid argument", kind.className + L"replaceData");
        IDataCfg* first = newDouble();
        IDataCfg* second = newDouble();
        node->setData(first);
        NodePtr<IDataCfg> previous(node->replaceData(second));
        EXPECT_EQ(previous.get(), first);
        EXPECT_EQ(first->getParent(), nullptr);
        EXPECT_EQ(second->getParent(), kind.adoptsData ? node.get() : nullptr);
        second->setParent(node.get());
        NodePtr<IDataCfg> released(node->releaseData());
        EXPECT_EQ(released.get(), second);
        EXPECT_EQ(second->getParent(), nullptr);
        EXPECT_EQ(node->getChildCount(), 0u);
    }
    // A parameter's child that is no data cannot be handed back: it is deleted.
    auto param = readParam(L"<Param/>");
    const long live = MemObject::liveCount();
    param->setChild(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr));
    EXPECT_EQ(param->replaceData(newDouble()), nullptr);
    param->deleteChildren();
    EXPECT_EQ(MemObject::liveCount(), live);
}

TEST_F(ParamTest, ClonesCopyEveryField) {
    auto param = readParam(
        L"<Scale shift=\"1.5\" transformCode=\"T\" unit=\"mm\"><UseDouble>2.5</UseDouble></Scale>");
    EXPECT_EQ(NodePtr<>(param->clone())->toXml(), param->toXml());
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.label);
        NodePtr<IExtParamCfg> node(kind.make());
        node->setParamName(L"n");
        node->setDesc(L"d");
        node->setScaleRelate(true);
        node->setData(newDouble());
        NodePtr<IExtParamCfg> clone(dynamic_cast<IExtParamCfg*>(node->clone()));
        EXPECT_EQ(clone->getDesc(), L"d");
        EXPECT_EQ(clone->toXml(), node->toXml());
    }
}

TEST_F(ParamTest, ShiftIsWrittenOnlyAboveTheThreshold) {
    const std::pair<double, std::wstring> cases[] = {
        {0.0, L""},
        {0.00005, L""},
        {-0.0001, L""},
        {0.00011, L" shift=\"0.0001\""},
        {0.5, L" shift=\"0.5000\""},
        {-0.25, L" shift=\"-0.2500\""},
    };
    auto param = readParam(L"<Param/>");
    for (const auto& [shift, attribute] : cases) {
        param->setShift(shift);
        EXPECT_EQ(param->toXml(), L"<Param" + attribute + L"></Param>") << shift;
    }
}

TEST_F(ParamTest, ParametersWriteTheirNameAndAttributesInOrderWithoutDesc) {
    auto param = readParam(L"<Param/>");
    EXPECT_EQ(param->getName(), L"Param");
    param->setName(L"Scale");
    EXPECT_EQ(param->getParamName(), L"Scale");
    param->setAttribute(L"unit", L"mm");
    param->setSystemValue(true);
    param->setShiftScaleRelate(true);
    param->setScaleRelate(true);
    param->setTransformCode(L"T");
    param->setShift(2.5);
    param->setDesc(L"not written");
    EXPECT_EQ(param->toXml(),
              L"<Scale shift=\"2.5000\" transformCode=\"T\" scaleRelate=\"true\" "
              L"shiftScaleRelate=\"true\" systemValue=\"true\" unit=\"mm\"></Scale>");
    param->setParamName(L"Step");
    EXPECT_EQ(param->getName(), L"Step");
}

TEST_F(ParamTest, ElementAttributesGoToTheirFieldsAndTheRestAreExtras) {
    auto param = readParam(
        L"<Width a=\"1\" shift=\" -0.25x\" desc=\"wide\" transformCode=\"T\" "
        L"scaleRelate=\"TRUE\" shiftScaleRelate=\"yes\" systemValue=\"1\"/>");
    EXPECT_EQ(param->getName(), L"Width");
    EXPECT_EQ(param->getDesc(), L"wide");
    EXPECT_FALSE(param->getShiftScaleRelate());
    EXPECT_FALSE(param->getSystemValue());
    EXPECT_EQ(
        param->toXml(),
        L"<Width shift=\"-0.2500\" transformCode=\"T\" scaleRelate=\"true\" a=\"1\"></Width>");
    auto value = readValue(
        L"<XValue name=\"n\" desc=\"d\" scaleRelate=\"True\" systemValue=\"tRuE\" other=\"x\"/>");
    EXPECT_EQ(value->getName(), L"XValue");
    EXPECT_EQ(value->getParamName(), L"n");
    EXPECT_EQ(value->toXml(),
              L"<XValue name=\"n\" desc=\"d\" scaleRelate=\"true\" systemValue=\"true\"></XValue>");
}

TEST_F(ParamTest, ExtraAttributesByPositionAndName) {
    auto param = readParam(L"<Param a=\"1\" b=\"2\"/>");
    const std::wstring& first = param->getAttribute(0u);
    param->setAttribute(0u, L"one");
    EXPECT_EQ(first, L"one") << "answers the stored value itself";
    param->setAttribute(L"b", L"two");
    param->setAttribute(L"c", L"3");
    EXPECT_EQ(param->getAttributeCount(), 3u);
    EXPECT_TRUE(param->hasAttribute(L"c"));
    EXPECT_EQ(param->getAttribute(L"b"), L"two");
    EXPECT_EQ(param->toXml(), L"<Param a=\"one\" b=\"two\" c=\"3\"></Param>");
    const std::wstring prefix = L"ParamCfgImpl::";
    expectError([&] { param->getAttribute(3u); }, IKAZException::OutOfRange,
                L"index 3 is out of range", prefix + L"getAttribute");
    expectError([&] { param->setAttribute(3u, L"x"); }, IKAZException::OutOfRange,
                L"index 3 is out of range", prefix + L"setAttribute");
    expectError([&] { param->getAttribute(L"d"); }, IKAZException::OutOfRange,
                L"d is not the name of child object", prefix + L"getAttribute");
}

TEST_F(ParamTest, OnlyTheElementNameXValueMakesAValue) {
    EXPECT_EQ(readValue(L"<Param/>"), nullptr);
}

}  // namespace
