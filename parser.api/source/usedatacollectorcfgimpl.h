#pragma once

#include <string>

#include "fixedchildren.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "nodeimpl.h"

namespace kaz::kazparser {

// "UseDataCollector": the data collector of a chain and its sample results,
// children told apart by node type. The replace operations do not set the
// new child's parent.
class UseDataCollectorCfgImpl final
    : public FixedChildren<NodeImpl<IUseDataCollectorCfg>,
                           Slot<IDataCollectorCfg, INodeCfg::DataCollector>,
                           Slot<ISampleResultsCfg, INodeCfg::SampleResults>> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseDataCollectorCfgImpl";

    explicit UseDataCollectorCfgImpl(INodeCfg* parent) : FixedChildren(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UseDataCollectorCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return UseDataCollector; }
    bool isValid() const override { return child<DataCollector>() != nullptr; }

    IDataCollectorCfg* getDataCollector() const override { return child<DataCollector>(); }
    void setDataCollector(IDataCollectorCfg* collector) override {
        setSlot<DataCollector>(collector, L"setDataCollector");
    }
    IDataCollectorCfg* releaseDataCollector() override { return releaseSlot<DataCollector>(); }
    IDataCollectorCfg* replaceDataCollector(IDataCollectorCfg* collector) override {
        return replaceSlot<DataCollector>(collector, L"replaceDataCollector", false);
    }
    ISampleResultsCfg* getSampleResults() const override { return child<SampleResults>(); }
    void setSampleResults(ISampleResultsCfg* results) override {
        setSlot<SampleResults>(results, L"setSampleResults");
    }
    ISampleResultsCfg* releaseSampleResults() override { return releaseSlot<SampleResults>(); }
    ISampleResultsCfg* replaceSampleResults(ISampleResultsCfg* results) override {
        return replaceSlot<SampleResults>(results, L"replaceSampleResults", false);
    }

private:
    UseDataCollectorCfgImpl(const UseDataCollectorCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
