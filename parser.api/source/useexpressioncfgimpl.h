#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/IUseExpressionCfg.h"
#include "leafnode.h"

namespace kaz::kazparser {

// "UseExpression": an expression, the element's text, written escaped.
class UseExpressionCfgImpl final : public LeafNode<IUseExpressionCfg, UseExpressionCfgImpl>,
                                   public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseExpressionCfgImpl";

    explicit UseExpressionCfgImpl(INodeCfg* parent) : LeafNode(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UseExpressionCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    bool setChild(INodeCfg* child) override;
    NodeType getNodeType() const override { return UseExpression; }
    tableobj::IElement::ElementType getDataType() const override {
        return tableobj::IElement::String;
    }

    const std::wstring& getExpression() const override { return expression_; }
    void setExpression(const std::wstring& expression) override { expression_ = expression; }
    void appendText(const std::wstring& text) override { expression_ += text; }

private:
    UseExpressionCfgImpl(const UseExpressionCfgImpl& other) = default;

    std::wstring expression_;
};

}  // namespace kaz::kazparser
