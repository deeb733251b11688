#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/ILanguageStringCfg.h"
#include "leafnode.h"

namespace kaz::kazparser {

// "UseLanguageString": a string ID, the element's text, written escaped;
// its display text comes from the working language.
class LanguageStringCfgImpl final : public LeafNode<ILanguageStringCfg, LanguageStringCfgImpl>,
                                    public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::LanguageStringCfgImpl";

    explicit LanguageStringCfgImpl(INodeCfg* parent) : LeafNode(parent) {}

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new LanguageStringCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    bool setChild(INodeCfg*) override { return false; }
    NodeType getNodeType() const override { return UseData; }
    tableobj::IElement::ElementType getDataType() const override;

    const std::wstring& getStringID() const override { return id_; }
    void setStringID(const std::wstring& id) override { id_ = id; }
    std::wstring getDisplayText() const override;
    void appendText(const std::wstring& text) override { id_ += text; }

private:
    LanguageStringCfgImpl(const LanguageStringCfgImpl& other) = default;

    std::wstring id_;
};

}  // namespace kaz::kazparser
