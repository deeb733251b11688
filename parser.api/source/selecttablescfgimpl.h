#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/ISelectTablesCfg.h"
#include "kazxml/SAX.h"
#include "leafnode.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// "SelectTables": its attributes in document order and its content as
// markup, both written back so that they read again to the same node.
class SelectTablesCfgImpl final : public LeafNode<ISelectTablesCfg, SelectTablesCfgImpl>,
                                  public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::SelectTablesCfgImpl";

    explicit SelectTablesCfgImpl(INodeCfg* parent) : LeafNode(parent) {}
    // Copies every attribute in document order.
    SelectTablesCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override { return new SelectTablesCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override;
    // The content is kept as markup: no node is taken.
    bool setChild(INodeCfg*) override { return false; }
    NodeType getNodeType() const override { return SelectTables; }

    unsigned int getAttributeCount() const override;
    const std::wstring& getAttributeName(unsigned int index) const override;
    const std::wstring& getAttribute(unsigned int index) const override;
    const std::wstring& getAttribute(const std::wstring& name) const override;
    void setAttribute(const std::wstring& name, const std::wstring& value) override;
    bool hasAttribute(const std::wstring& name) const override;

    const std::wstring& getContent() const override { return content_; }
    void setContent(const std::wstring& markup) override { content_ = markup; }
    void takeMarkup(const std::wstring& markup) override { content_ = markup; }

private:
    SelectTablesCfgImpl(const SelectTablesCfgImpl& other) = default;

    const std::pair<std::wstring, std::wstring>& attributeAt(unsigned int index,
                                                             const wchar_t* method) const;
    AttributeList::const_iterator find(const std::wstring& name) const;

    AttributeList attributes_;
    std::wstring content_;
};

}  // namespace kaz::kazparser
