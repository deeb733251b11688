// Extension parameters, values and parameters: the data child where the
// three kinds differ, and the attributes of parameters.

#include <functional>

#include "testsupport.h"

namespace {

using namespace kaztest;
using tableobj::IElement;

NodePtr<IParamCfg> readParam(const std::wstring& text) {
    return NodePtr<IParamCfg>(KAZConfigFactory::createParamCfg(&text, nullptr));
}

IDataCfg* newDouble() {
    const std::wstring text = L"<UseDouble>2.5</UseDouble>";
    return KAZConfigFactory::createUseDataCfg(IElement::Double, &text, nullptr);
}

// Where the kinds of the data-child family differ.
struct DataChildKind {
    const char* label;
    std::function<IExtParamCfg*()> make;
    std::wstring className;
    bool adoptsData;           // data it takes gets it as parent
    std::wstring setDataNull;  // where a null setData raises; empty: it clears
};

const std::vector<DataChildKind> kDataChildKinds = {
    {"ExtParam", [] { return KAZConfigFactory::createExtParamCfg(nullptr, nullptr); },
     L"ExtParamCfgImpl::", true, L"setData"},
    {"XValue", [] { return KAZConfigFactory::createXValueCfg(nullptr, nullptr); },
     L"XValueCfgImpl::", false, L"setChild"},
    {"Param", [] { return KAZConfigFactory::createParamCfg(nullptr, nullptr); }, L"ParamCfgImpl::",
     true, L""},
};

using ParamTest = LeakCheckedTest;

TEST_F(ParamTest, DataIsTakenDeletedAndHandedBackAsTheKindDoes) {
    for (const DataChildKind& kind : kDataChildKinds) {
        SCOPED_TRACE(kind.label);
        NodePtr<IExtParamCfg> node(kind.make());
        EXPECT_EQ(node->releaseData(), nullptr);
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
        EXPECT_EQ(node->getChildCount(), 1u);
        EXPECT_EQ(node->getChild(0), viaSetData);
        EXPECT_EQ(node->getDataType(), IElement::Double);

        if (kind.setDataNull.empty()) {
            node->setData(nullptr);
            EXPECT_EQ(MemObject::liveCount(), empty);
        } else {
            expectError([&] { node->setData(nullptr); }, IKAZException::InvalidData,
                        L"Invalid argument", kind.className + kind.setDataNull);
            EXPECT_EQ(node->getData(), viaSetData);
        }
        node->deleteChildren();
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

        // The description is kept though a parameter does not write it.
        node->setDesc(L"d");
        EXPECT_EQ(NodePtr<IExtParamCfg>(dynamic_cast<IExtParamCfg*>(node->clone()))->getDesc(),
                  L"d");
    }
    // A parameter takes any node; one that is no data is no data to read or
    // hand back, and replacing it deletes it.
    auto param = readParam(L"<Param/>");
    const long live = MemObject::liveCount();
    EXPECT_TRUE(param->setChild(KAZConfigFactory::createParamSetsCfg(nullptr, nullptr)));
    EXPECT_EQ(param->getData(), nullptr);
    EXPECT_EQ(param->getDataType(), IElement::NoValue);
    EXPECT_EQ(param->releaseData(), nullptr);
    EXPECT_EQ(param->replaceData(newDouble()), nullptr);
    param->deleteChildren();
    EXPECT_EQ(MemObject::liveCount(), live);
}

// The element name is the parameter's name; the attributes that are no
// field of its are kept in their order.
TEST_F(ParamTest, ElementAttributesGoToTheirFieldsAndTheRestAreExtras) {
    auto param = readParam(L"<Width a=\"1\" b=\"2\" desc=\"wide\"/>");
    EXPECT_EQ(param->getParamName(), L"Width");
    EXPECT_EQ(param->getDesc(), L"wide");
    const std::wstring& first = param->getAttribute(0u);
    param->setAttribute(0u, L"one");
    EXPECT_EQ(first, L"one") << "answers the stored value itself";
    param->setAttribute(L"b", L"two");
    param->setAttribute(L"c", L"3");
    EXPECT_EQ(param->getAttributeCount(), 3u);
    EXPECT_EQ(param->getAttribute(L"b"), L"two");
    param->setParamName(L"Step");
    EXPECT_EQ(param->toXml(), L"<Step a=\"one\" b=\"two\" c=\"3\"></Step>");
}

}  // namespace
