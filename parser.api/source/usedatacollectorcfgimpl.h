#pragma once

#include <string>

#include "childslot.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "nodeimpl.h"

namespace kaz::kazparser {

// "UseDataCollector": the data collector of a chain and its sample results,
// children told apart by node type. The replace operations do not set the
// new child's parent.
class UseDataCollectorCfgImpl final : public NodeImpl<IUseDataCollectorCfg> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseDataCollectorCfgImpl";

    explicit UseDataCollectorCfgImpl(INodeCfg* parent) : NodeImpl(parent) {}
    ~UseDataCollectorCfgImpl() override { deleteChildren(); }

    // A string shared by every node of the class, refilled on each call.
    const std::wstring& getName() const override;
    INodeCfg* getChild(unsigned int index) const override;
    unsigned int getChildCount() const override;
    void deleteChildren() override;
    INodeCfg* clone() const override { return new UseDataCollectorCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    // A data collector or sample results; any other kind answers false.
    bool setChild(INodeCfg* child) override;
    NodeType getNodeType() const override { return UseDataCollector; }
    bool isValid() const override { return static_cast<bool>(collector_); }

    IDataCollectorCfg* getDataCollector() const override { return collector_.get(); }
    void setDataCollector(IDataCollectorCfg* collector) override;
    IDataCollectorCfg* releaseDataCollector() override { return collector_.release(); }
    IDataCollectorCfg* replaceDataCollector(IDataCollectorCfg* collector) override;
    ISampleResultsCfg* getSampleResults() const override { return results_.get(); }
    void setSampleResults(ISampleResultsCfg* results) override;
    ISampleResultsCfg* releaseSampleResults() override { return results_.release(); }
    ISampleResultsCfg* replaceSampleResults(ISampleResultsCfg* results) override;

private:
    UseDataCollectorCfgImpl(const UseDataCollectorCfgImpl& other);

    ChildSlot<IDataCollectorCfg> collector_;
    ChildSlot<ISampleResultsCfg> results_;
};

}  // namespace kaz::kazparser
