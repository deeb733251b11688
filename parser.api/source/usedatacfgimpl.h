#pragma once

#include <memory>
#include <string>

#include "contentsink.h"
#include "kazparser/IUseDataCfg.h"
#include "leafnode.h"
#include "saxattributes.h"
#include "tableobj/IScalar.h"

namespace kaz::kazparser {

// A typed value: at most one owned table object, written inside the
// element as the table object writes itself.
class UseDataCfgImpl final : public LeafNode<IUseDataCfg, UseDataCfgImpl>, public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseDataCfgImpl";

    explicit UseDataCfgImpl(INodeCfg* parent);
    UseDataCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override;
    bool writeXml(IXmlWriter& out) const override;
    bool setChild(INodeCfg* child) override;
    NodeType getNodeType() const override { return UseData; }
    tableobj::IElement::ElementType getDataType() const override;

    tableobj::IElement* getValue() const override { return value_.get(); }
    void setValue(tableobj::IElement* value) override;
    tableobj::IElement* replaceValue(tableobj::IElement* value) override;
    tableobj::IElement* releaseValue() override;
    void setBool(bool value) override;
    void setInt(int value) override;
    void setDouble(double value) override;
    void setString(const std::wstring& value) override;
    void setElementName(const std::wstring& name) override { name_ = name; }
    void takeValue(tableobj::IElement* value) override { setValue(value); }

    // The element name of a value type; empty for the types without one.
    static const wchar_t* elementNameOf(tableobj::IElement::ElementType type);
    // The value type an element name stands for; NoValue for other names.
    static tableobj::IElement::ElementType typeOfElement(std::wstring_view name);

private:
    UseDataCfgImpl(const UseDataCfgImpl& other);

    void nameAfter(const tableobj::IElement& value);
    // Sets the held scalar when it is a `Scalar`, else stores a new one.
    template <class Scalar, class Make>
    void assign(const typename Scalar::ValueType& value, Make make);

    std::wstring name_;
    std::unique_ptr<tableobj::IElement> value_;
};

}  // namespace kaz::kazparser
