#pragma once

#include <map>
#include <string>

#include "kazparser/IFeaturesCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// The "Features" element: features in order, with an index from name to
// position. A name already present is refused silently, except by insert
// and replace at the position of a feature of that same name.
class FeaturesCfgImpl final : public NodeCollection<IFeaturesCfg, IFeatureCfg, FeaturesCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::FeaturesCfgImpl";

    using NodeCollection::operator[];

    explicit FeaturesCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new FeaturesCfgImpl(*this); }
    NodeType getNodeType() const override { return Features; }

    unsigned int append(INodeCfg* item) override;
    unsigned int insert(INodeCfg* item, unsigned int index) override;
    INodeCfg* replace(INodeCfg* item, unsigned int index) override;
    INodeCfg* remove(unsigned int index) override;
    void deleteChildren() override;

    IFeatureCfg* operator[](const std::wstring& name) const override;
    bool contains(const std::wstring& name) const override { return index_.count(name) != 0; }
    IFeatureCfg* replace(INodeCfg* feature, const std::wstring& name) override;
    IFeatureCfg* remove(const std::wstring& name) override;

private:
    friend NodeCollection;  // asks for freshIndex()

    FeaturesCfgImpl(const FeaturesCfgImpl& other);

    // Whether `name` is taken by another feature than the one at `index`.
    bool takenElsewhere(const std::wstring& name, unsigned int index) const;
    // The position of `name`; an unknown name raises the error naming `method`.
    unsigned int positionOf(const std::wstring& name, const wchar_t* method) const;
    // Every feature's name with its position; when two share a name, the
    // later position wins.
    std::map<std::wstring, unsigned int> freshIndex() const;

    std::map<std::wstring, unsigned int> index_;
};

}  // namespace kaz::kazparser
