#pragma once

#include <string>

#include "chaininputnode.h"
#include "kazparser/IInputConfigCfg.h"

namespace kaz::kazparser {

// "InputConfig": the input stage of a presentation element.
class InputConfigCfgImpl final : public ChainInputNode<IInputConfigCfg, InputConfigCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::InputConfigCfgImpl";
    static constexpr bool kAdoptsReplacedTables = true;

    explicit InputConfigCfgImpl(INodeCfg* parent) : ChainInputNode(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new InputConfigCfgImpl(*this); }
    NodeType getNodeType() const override { return InputConfig; }

private:
    InputConfigCfgImpl(const InputConfigCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
