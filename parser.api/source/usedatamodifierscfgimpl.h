#pragma once

#include <string>

#include "kazparser/IUseDataModifiersCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// "UseDataModifiers": the data modifiers of a chain, in the order applied.
class UseDataModifiersCfgImpl final
    : public NodeCollection<IUseDataModifiersCfg, IDataModifierCfg, UseDataModifiersCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseDataModifiersCfgImpl";

    using NodeCollection::operator[];

    explicit UseDataModifiersCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    // A string shared by every node of the class, refilled on each call.
    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UseDataModifiersCfgImpl(*this); }
    NodeType getNodeType() const override { return UseDataModifiers; }

    IDataModifierCfg* operator[](const std::wstring& name) const override;

private:
    UseDataModifiersCfgImpl(const UseDataModifiersCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
