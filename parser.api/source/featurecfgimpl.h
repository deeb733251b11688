#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/IFeatureCfg.h"
#include "kazxml/SAX.h"
#include "leafnode.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// A feature element of any name: its attributes kept as one text, as read,
// and its content, nested markup included, as its value. Nothing is escaped
// when it is written.
class FeatureCfgImpl final : public LeafNode<IFeatureCfg, FeatureCfgImpl>, public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::FeatureCfgImpl";

    // Named "Feature".
    explicit FeatureCfgImpl(INodeCfg* parent);
    FeatureCfgImpl(const ElementStart& element, INodeCfg* parent);

    // The form a feature keeps attributes in: each as a blank, the local
    // name, "=\"", the value as it is and "\"". The tree builder writes the
    // attributes of markup nested in a feature the same way.
    static std::wstring attributeText(const ElementStart& element);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new FeatureCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    bool setChild(INodeCfg*) override { return false; }
    NodeType getNodeType() const override { return Feature; }

    bool setValue(const std::wstring& value) override;
    const std::wstring& appendValue(const std::wstring& text) override { return value_ += text; }
    void appendText(const std::wstring& text) override { value_ += text; }
    void setName(const std::wstring& name) override { name_ = name; }
    const std::wstring& getValue() const override { return value_; }
    const std::wstring& getAttributesText() const override { return attributesText_; }

private:
    FeatureCfgImpl(const FeatureCfgImpl& other) = default;

    std::wstring name_;
    std::wstring attributesText_;
    std::wstring value_;
};

}  // namespace kaz::kazparser
