#pragma once

#include <string>

#include "kazparser/IPresentationElementCfg.h"
#include "kazxml/SAX.h"
#include "presentationnode.h"

namespace kaz::kazparser {

// "PresentationElement": one presentable item with its features, extra
// values, input and output configuration.
class PresentationElementCfgImpl final
    : public PresentationNode<IPresentationElementCfg, PresentationElementCfgImpl,
                              Slot<IInputConfigCfg, INodeCfg::InputConfig>,
                              Slot<IOutputConfigCfg, INodeCfg::OutputConfig>> {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::PresentationElementCfgImpl";
    static constexpr NodeType kNodeType = PresentationElement;
    static const std::wstring& tag();

    explicit PresentationElementCfgImpl(INodeCfg* parent) : PresentationNode(parent) {}
    // Reads "name", "desc", "kaz.DwgSysParam.MeasureScale", "schemaVersion",
    // "nameStringID" and "descStringID"; other attributes are ignored.
    PresentationElementCfgImpl(const ElementStart& element, INodeCfg* parent)
        : PresentationNode(element, parent) {}

    INodeCfg* clone() const override { return new PresentationElementCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;

    IInputConfigCfg* getInputConfig() const override { return child<InputConfig>(); }
    void setInputConfig(IInputConfigCfg* input) override {
        setSlot<InputConfig>(input, L"setInputConfig");
    }
    IInputConfigCfg* replaceInputConfig(IInputConfigCfg* input) override {
        return replaceSlot<InputConfig>(input, L"replaceInputConfig");
    }
    IInputConfigCfg* releaseInputConfig() override { return releaseSlot<InputConfig>(); }

    IOutputConfigCfg* getOutputConfig() const override { return child<OutputConfig>(); }
    void setOutputConfig(IOutputConfigCfg* output) override {
        setSlot<OutputConfig>(output, L"setOutputConfig");
    }
    IOutputConfigCfg* replaceOutputConfig(IOutputConfigCfg* output) override {
        return replaceSlot<OutputConfig>(output, L"replaceOutputConfig");
    }
    IOutputConfigCfg* releaseOutputConfig() override { return releaseSlot<OutputConfig>(); }

    bool setSchemaVersion(const std::wstring& version) override;
    void setName(const std::wstring& name) override;
    void setDesc(const std::wstring& desc) override;

private:
    PresentationElementCfgImpl(const PresentationElementCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
