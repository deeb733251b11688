#pragma once

#include <array>
#include <string>

#include "kazparser/IPresentationElementCfg.h"
#include "kazxml/SAX.h"
#include "presentationnode.h"

namespace kaz::kazparser {

// "PresentationElement": one presentable item with its features, extra
// values, input and output configuration.
class PresentationElementCfgImpl final
    : public PresentationNode<IPresentationElementCfg, PresentationElementCfgImpl> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::PresentationElementCfgImpl";
    static constexpr NodeType kNodeType = PresentationElement;
    static const std::wstring& tag();

    explicit PresentationElementCfgImpl(INodeCfg* parent) : PresentationNode(parent) {}
    // Reads "name", "desc", "kaz.DwgSysParam.MeasureScale", "schemaVersion",
    // "nameStringID" and "descStringID"; other attributes are ignored.
    PresentationElementCfgImpl(kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
        : PresentationNode(readAttributes(attributes, AttributeNaming::Local), parent) {}

    INodeCfg* clone() const override { return new PresentationElementCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    void deleteChildren() override;
    bool setChild(INodeCfg* child) override;

    void setInputConfig(IInputConfigCfg* input) override;
    void setOutputConfig(IOutputConfigCfg* output) override;
    IInputConfigCfg* replaceInputConfig(IInputConfigCfg* input) override;
    IOutputConfigCfg* replaceOutputConfig(IOutputConfigCfg* output) override;
    IInputConfigCfg* releaseInputConfig() override { return input_.release(); }
    IOutputConfigCfg* releaseOutputConfig() override { return output_.release(); }
    IInputConfigCfg* getInputConfig() const override { return input_.get(); }
    IOutputConfigCfg* getOutputConfig() const override { return output_.get(); }

    bool setSchemaVersion(const std::wstring& version) override;
    void setName(const std::wstring& name) override;
    void setDesc(const std::wstring& desc) override;

    std::array<INodeCfg*, 4> childSlots() const;

private:
    PresentationElementCfgImpl(const PresentationElementCfgImpl& other);

    ChildSlot<IInputConfigCfg> input_;
    ChildSlot<IOutputConfigCfg> output_;
};

}  // namespace kaz::kazparser
