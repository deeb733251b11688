#pragma once

#include <string>

#include "chaininputnode.h"
#include "kazparser/IUseEngineCfg.h"

namespace kaz::kazparser {

// "UseEngine": a processing chain standing as a data value.
class UseEngineCfgImpl final : public ChainInputNode<IUseEngineCfg, UseEngineCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseEngineCfgImpl";
    static constexpr bool kAdoptsReplacedTables = false;

    explicit UseEngineCfgImpl(INodeCfg* parent) : ChainInputNode(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UseEngineCfgImpl(*this); }
    NodeType getNodeType() const override { return UseEngine; }
    tableobj::IElement::ElementType getDataType() const override {
        return tableobj::IElement::String;
    }

private:
    UseEngineCfgImpl(const UseEngineCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
