#pragma once

#include <string>

#include "kazparser/IParamSetsCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// The "ParamSets" element: a list of parameter sets of any element name.
class ParamSetsCfgImpl final
    : public NodeCollection<IParamSetsCfg, IParamSetCfg, ParamSetsCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ParamSetsCfgImpl";

    using NodeCollection::append;
    using NodeCollection::insert;

    explicit ParamSetsCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new ParamSetsCfgImpl(*this); }
    NodeType getNodeType() const override { return ParamSets; }
    // The list answers the generic append's result (a count, never 0).
    bool setChild(INodeCfg* child) override { return append(child) != 0; }

    bool isEditable() const override { return true; }
    bool hasParamSet(const std::wstring& name) const override;
    unsigned int append(IParamSetCfg* paramSet) override { return appendTyped(paramSet); }
    IParamSetCfg* getParamSet(unsigned int index) const override { return typedChild(index); }
    IParamSetCfg* getParamSet(const std::wstring& name) const override;
    bool erase(unsigned int index) override { return eraseItem(index); }
    bool replaceParamSet(IParamSetCfg* paramSet, unsigned int index) override {
        return replaceAndDelete(paramSet, index);
    }
    unsigned int insert(IParamSetCfg* paramSet, unsigned int index) override;

private:
    ParamSetsCfgImpl(const ParamSetsCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
