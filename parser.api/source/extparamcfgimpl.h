#pragma once

#include <string>

#include "datachildnode.h"
#include "kazparser/IExtParamCfg.h"
#include "kazxml/SAX.h"

namespace kaz::kazparser {

// An "ExtParam" element: "name", "desc", "scaleRelate" and a data child.
class ExtParamCfgImpl final : public DataChildNode<IExtParamCfg, ExtParamCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::ExtParamCfgImpl";

    explicit ExtParamCfgImpl(INodeCfg* parent);
    // Reads "name", "desc" and "scaleRelate".
    ExtParamCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new ExtParamCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return ExtParam; }

    // Only data nodes are taken; they are made children of this node.
    bool setChild(INodeCfg* child) override;
    void setData(IDataCfg* data) override;
    IDataCfg* replaceData(IDataCfg* data) override { return replaceDataChild(data, this); }

private:
    ExtParamCfgImpl(const ExtParamCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
