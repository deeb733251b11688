#pragma once

#include <string_view>

#include "kazparser/IDataCollectorCfg.h"
#include "pluginnode.h"

namespace kaz::kazparser {

// A data collector: a plug-in written under its stored name, even empty.
class DataCollectorCfgImpl final : public PlugInNode<IDataCollectorCfg, DataCollectorCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::DataCollectorCfgImpl";
    static constexpr NodeType kNodeType = DataCollector;

    explicit DataCollectorCfgImpl(INodeCfg* parent);
    DataCollectorCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override;

private:
    DataCollectorCfgImpl(const DataCollectorCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
