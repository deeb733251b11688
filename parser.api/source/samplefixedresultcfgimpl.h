#pragma once

#include "childslot.h"
#include "kazparser/ISampleFixedResultCfg.h"
#include "kazxml/SAX.h"
#include "sampleresultnode.h"

namespace kaz::kazparser {

// "SampleFixedResult": a sample entry holding its value as at most one data
// node. It reads "name" and "desc".
class SampleFixedResultCfgImpl final
    : public SampleResultNode<ISampleFixedResultCfg, SampleFixedResultCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::SampleFixedResultCfgImpl";
    static constexpr NodeType kNodeType = SampleFixedResult;

    explicit SampleFixedResultCfgImpl(INodeCfg* parent) : SampleResultNode(parent) {}
    SampleFixedResultCfgImpl(kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
        : SampleResultNode(readAttributes(attributes), parent) {}

    INodeCfg* clone() const override { return new SampleFixedResultCfgImpl(*this); }
    INodeCfg* getChild(unsigned int index) const override;
    unsigned int getChildCount() const override { return data_ ? 1u : 0u; }
    void deleteChildren() override { data_.reset(); }
    // Takes a data node without re-parenting it; the previous one is let go
    // of, detached and alive, for whoever holds it. Anything else raises
    // "Invalid argument".
    bool setChild(INodeCfg* child) override;

    IUseDataCfg* getData() const override { return data_.get(); }
    void setData(IUseDataCfg* data) override;

    void addAttributes(StartTag&) const {}

private:
    SampleFixedResultCfgImpl(const SampleFixedResultCfgImpl& other);

    ChildSlot<IUseDataCfg> data_;
};

}  // namespace kaz::kazparser
