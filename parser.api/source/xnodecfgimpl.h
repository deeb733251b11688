#pragma once

#include <string>

#include "contentsink.h"
#include "kazparser/IXNodeCfg.h"
#include "kazxml/SAX.h"
#include "nodecollection.h"
#include "saxattributes.h"

namespace kaz::kazparser {

// A generic element: name, attributes in document order, text, and child
// nodes of any kind.
class XNodeCfgImpl final : public NodeCollection<IXNodeCfg, INodeCfg, XNodeCfgImpl>,
                           public ContentSink {
public:
    static constexpr const wchar_t* kClassName = L"kaz::kazparser::XNodeCfgImpl";

    explicit XNodeCfgImpl(INodeCfg* parent);
    // Keeps the element name and copies every attribute in document order.
    XNodeCfgImpl(const ElementStart& element, INodeCfg* parent);

    const std::wstring& getName() const override;
    INodeCfg* clone() const override;
    bool writeXml(IXmlWriter& out) const override;
    bool setChild(INodeCfg* child) override { return append(child) != 0; }
    NodeType getNodeType() const override { return XNode; }

    void setName(const std::wstring& name) override { name_ = name; }
    const std::wstring& getText() const override { return text_; }
    void setText(const std::wstring& text) override { text_ = text; }
    void appendText(const std::wstring& text) override { text_ += text; }

    unsigned int getAttributeCount() const override;
    const std::wstring& getAttributeName(unsigned int index) const override;
    void setAttributeName(unsigned int index, const std::wstring& name) override;
    const std::wstring& getAttribute(unsigned int index) const override;
    const std::wstring& getAttribute(const std::wstring& name) const override;
    void setAttribute(unsigned int index, const std::wstring& value) override;
    void setAttribute(const std::wstring& name, const std::wstring& value) override;
    bool hasAttribute(const std::wstring& name) const override;

    void getChildValue(const std::wstring& childName, std::wstring& value) const override;
    void getChildValue(const std::wstring& childName, int& value) const override;
    void getChildValue(const std::wstring& childName, double& value) const override;
    void getChildValue(const std::wstring& childName, bool& value) const override;

    // Whitespace-only text between child elements is indentation, not
    // content, and is dropped.
    void endOfContent() override;

private:
    XNodeCfgImpl(const XNodeCfgImpl& other) = default;

    AttributeList::const_iterator findAttribute(const std::wstring& name) const;
    void checkAttributeIndex(unsigned int index, const wchar_t* method) const;
    // The text of the last child element named `childName`.
    const std::wstring& childText(const std::wstring& childName) const;
    [[noreturn]] void unreadable(const std::wstring& childName, const std::wstring& text,
                                 const wchar_t* what) const;

    std::wstring name_;
    AttributeList attributes_;
    std::wstring text_;
};

}  // namespace kaz::kazparser
