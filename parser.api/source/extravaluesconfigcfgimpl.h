#pragma once

#include <string>

#include "kazparser/IExtraValuesConfigCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// The "ExtraValuesConfig" element: a list of "XValue" values, found by
// their "name". Values of the same name are all kept, so that any element
// writes back as it was read.
class ExtraValuesConfigCfgImpl final
    : public NodeCollection<IExtraValuesConfigCfg, IXValueCfg, ExtraValuesConfigCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ExtraValuesConfigCfgImpl";

    explicit ExtraValuesConfigCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new ExtraValuesConfigCfgImpl(*this); }
    NodeType getNodeType() const override { return ExtraValuesConfig; }

    bool hasXValue(const std::wstring& name) const override;
    IXValueCfg* getXValue(unsigned int index) const override { return typedChild(index); }
    IXValueCfg* getXValue(const std::wstring& name) const override;

private:
    ExtraValuesConfigCfgImpl(const ExtraValuesConfigCfgImpl& other) = default;

    // The position of the last value named `name`, or kNoPosition.
    unsigned int lastPositionOfValue(const std::wstring& name) const;
};

}  // namespace kaz::kazparser
