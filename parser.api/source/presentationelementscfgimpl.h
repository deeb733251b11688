#pragma once

#include <string>

#include "kazparser/IPresentationElementsCfg.h"
#include "kazparser/IUseRefPresentationElementCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// "PresentationElements": the fixed and file references of a group.
class PresentationElementsCfgImpl final
    : public NodeCollection<IPresentationElementsCfg, IUsePresentationElementCfg,
                            PresentationElementsCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::PresentationElementsCfgImpl";

    explicit PresentationElementsCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new PresentationElementsCfgImpl(*this); }
    NodeType getNodeType() const override { return PresentationElements; }
    // The list answers the generic append's result (a count, never 0).
    bool setChild(INodeCfg* child) override { return append(child) != 0; }

    unsigned int resolveReferences() override;

private:
    PresentationElementsCfgImpl(const PresentationElementsCfgImpl& other) = default;

    // The fixed reference that takes the place of `reference`, holding the
    // element read from its file; null when the file holds no element.
    IUsePresentationElementCfg* resolved(const IUseRefPresentationElementCfg& reference) const;
};

}  // namespace kaz::kazparser
