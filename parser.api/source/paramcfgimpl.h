#pragma once

#include <string>

#include "datachildnode.h"
#include "extraattributes.h"
#include "kazparser/IParamCfg.h"
#include "kazxml/SAX.h"

namespace kaz::kazparser {

// A parameter: an element of any name ("Param" by default) with "shift",
// "transformCode", three flags, extra attributes and a data child. "desc"
// is kept but not written. setChild takes a node of any kind.
class ParamCfgImpl final : public DataChildNode<IParamCfg, ParamCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ParamCfgImpl";

    explicit ParamCfgImpl(INodeCfg* parent);
    // Takes the element name; reads "shift", "transformCode", "scaleRelate",
    // "shiftScaleRelate", "systemValue" and "desc", and keeps every other
    // attribute as an extra attribute, in document order.
    ParamCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override { return name_; }
    INodeCfg* clone() const override { return new ParamCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return Param; }

    bool setChild(INodeCfg* child) override;
    void setData(IDataCfg* data) override { setDataChild(data, this); }
    IDataCfg* replaceData(IDataCfg* data) override { return replaceDataChild(data, this); }

    bool getSystemValue() const override { return systemValue_; }
    void setSystemValue(bool systemValue) override { systemValue_ = systemValue; }
    const std::wstring& getTransformCode() const override { return transformCode_; }
    void setTransformCode(const std::wstring& transformCode) override {
        transformCode_ = transformCode;
    }
    bool getShiftScaleRelate() const override { return shiftScaleRelate_; }
    void setShiftScaleRelate(bool shiftScaleRelate) override {
        shiftScaleRelate_ = shiftScaleRelate;
    }
    double getShift() const override { return shift_; }
    void setShift(double shift) override { shift_ = shift; }
    void setName(const std::wstring& name) override { name_ = name; }

    const std::wstring& getAttribute(unsigned int index) const override {
        return extras_.value(index, L"getAttribute");
    }
    const std::wstring& getAttribute(const std::wstring& name) const override {
        return extras_.value(name, L"getAttribute");
    }
    void setAttribute(unsigned int index, const std::wstring& value) override {
        extras_.set(index, value, L"setAttribute");
    }
    void setAttribute(const std::wstring& name, const std::wstring& value) override {
        extras_.set(name, value);
    }
    bool hasAttribute(const std::wstring& name) const override { return extras_.has(name); }
    unsigned int getAttributeCount() const override { return extras_.count(); }

private:
    ParamCfgImpl(const ParamCfgImpl& other) = default;

    std::wstring transformCode_;
    bool shiftScaleRelate_ = false;
    bool systemValue_ = false;
    double shift_ = 0.0;
    ExtraAttributes extras_{kClassName};
};

}  // namespace kaz::kazparser
