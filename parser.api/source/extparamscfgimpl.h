#pragma once

#include <map>
#include <string>

#include "kazparser/IExtParamsCfg.h"
#include "nodecollection.h"

namespace kaz::kazparser {

// The "ExtParams" element: extension parameters in order, indexed by their
// "name". A name already indexed is refused by append and insert.
class ExtParamsCfgImpl final
    : public NodeCollection<IExtParamsCfg, IExtParamCfg, ExtParamsCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ExtParamsCfgImpl";

    using NodeCollection::operator[];

    explicit ExtParamsCfgImpl(INodeCfg* parent) : NodeCollection(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new ExtParamsCfgImpl(*this); }
    NodeType getNodeType() const override { return ExtParams; }

    // kNoPosition, without taking the item, for a name already indexed.
    unsigned int append(INodeCfg* item) override;
    unsigned int insert(INodeCfg* item, unsigned int index) override;
    INodeCfg* remove(unsigned int index) override;
    // The new item is indexed under the name of the item it replaces, so
    // that the previous key still finds the slot; its own name is not.
    INodeCfg* replace(INodeCfg* item, unsigned int index) override;
    void deleteChildren() override;

    IExtParamCfg* operator[](const std::wstring& name) const override;
    bool hasExtParam(const std::wstring& name) const override { return index_.count(name) != 0; }

private:
    // Copies the index entry for entry, each naming the copy's item at the
    // same position.
    ExtParamsCfgImpl(const ExtParamsCfgImpl& other);

    // Takes every entry that names `item` out of the index.
    void unindex(const IExtParamCfg* item);

    std::map<std::wstring, IExtParamCfg*> index_;
};

}  // namespace kaz::kazparser
