#pragma once

#include "fixedchildren.h"
#include "kazparser/ISampleFixedResultCfg.h"
#include "kazxml/SAX.h"
#include "sampleresultnode.h"

namespace kaz::kazparser {

// "SampleFixedResult": a sample entry holding its value as at most one data
// node. It reads "name" and "desc".
class SampleFixedResultCfgImpl final
    : public FixedChildren<SampleResultNode<ISampleFixedResultCfg, SampleFixedResultCfgImpl>,
                           Slot<IUseDataCfg, INodeCfg::UseData>> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::SampleFixedResultCfgImpl";
    static constexpr NodeType kNodeType = SampleFixedResult;

    explicit SampleFixedResultCfgImpl(INodeCfg* parent) : FixedChildren(parent) {}
    SampleFixedResultCfgImpl(const ElementStart& element, INodeCfg* parent)
        : FixedChildren(element, parent) {}

    INodeCfg* clone() const override { return new SampleFixedResultCfgImpl(*this); }
    // Takes a data node without re-parenting it; the previous one is let go
    // of, detached and alive, for whoever holds it. Anything else raises
    // "Invalid argument".
    bool setChild(INodeCfg* child) override;

    IUseDataCfg* getData() const override { return child<UseData>(); }
    // Null deletes the data node.
    void setData(IUseDataCfg* data) override { slot<UseData>().set(data, this); }

    void addAttributes(StartTag&) const {}

private:
    SampleFixedResultCfgImpl(const SampleFixedResultCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
