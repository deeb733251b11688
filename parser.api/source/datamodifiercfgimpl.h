#pragma once

#include <string_view>

#include "kazparser/IDataModifierCfg.h"
#include "pluginnode.h"

namespace kaz::kazparser {

// A data modifier: a plug-in written as "DataModifiers" while its name is
// empty.
class DataModifierCfgImpl final : public PlugInNode<IDataModifierCfg, DataModifierCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::DataModifierCfgImpl";
    static constexpr NodeType kNodeType = DataModifier;

    explicit DataModifierCfgImpl(INodeCfg* parent);
    DataModifierCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override;

private:
    DataModifierCfgImpl(const DataModifierCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
