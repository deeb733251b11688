#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/IUseRefDataCfg.h"
#include "leafnode.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// A reference element ("UseData", "UseXValue") holding its content as XML
// text, written back between its tags unchanged.
class UseRefDataCfgImpl final : public LeafNode<IUseRefDataCfg, UseRefDataCfgImpl>,
                                public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::UseRefDataCfgImpl";

    explicit UseRefDataCfgImpl(INodeCfg* parent) : LeafNode(parent) {}
    UseRefDataCfgImpl(const ElementStart& element, INodeCfg* parent)
        : LeafNode(parent), name_(element.name) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new UseRefDataCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override { return writeText(out, reference_); }
    // The content is kept as text: no node is taken.
    bool setChild(INodeCfg*) override { return false; }
    NodeType getNodeType() const override { return UseRefData; }
    tableobj::IElement::ElementType getDataType() const override {
        return tableobj::IElement::NoValue;
    }

    const std::wstring& getReference() const override { return reference_; }
    void setReference(const std::wstring& reference) override { reference_ = reference; }
    void takeMarkup(const std::wstring& markup) override { reference_ = markup; }
    void setElementName(const std::wstring& name) override { name_ = name; }

private:
    UseRefDataCfgImpl(const UseRefDataCfgImpl& other) = default;

    std::wstring name_;
    std::wstring reference_;
};

}  // namespace kaz::kazparser
