#pragma once

#include <string>

#include "datachildnode.h"
#include "kazparser/IXValueCfg.h"
#include "kazxml/SAX.h"

namespace kaz::kazparser {

// An "XValue" element: "name", "desc", "scaleRelate", "systemValue" and a
// data child. Unlike the other kinds of its family it does not make the
// data child its child: setChild, setData and replaceData leave the data
// node's parent as it was.
class XValueCfgImpl final : public DataChildNode<IXValueCfg, XValueCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::XValueCfgImpl";

    explicit XValueCfgImpl(INodeCfg* parent);
    // Reads "name", "desc", "scaleRelate" and "systemValue".
    XValueCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new XValueCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    NodeType getNodeType() const override { return XValue; }

    // Only data nodes are taken.
    bool setChild(INodeCfg* child) override;
    // As setChild, errors included.
    void setData(IDataCfg* data) override { setChild(data); }
    IDataCfg* replaceData(IDataCfg* data) override { return replaceDataChild(data, nullptr); }

    bool getSystemValue() const override { return systemValue_; }
    void setSystemValue(bool systemValue) override { systemValue_ = systemValue; }

private:
    XValueCfgImpl(const XValueCfgImpl& other) = default;

    bool systemValue_ = false;
};

}  // namespace kaz::kazparser
