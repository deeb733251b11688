#pragma once

#include <string>
#include <utility>

#include "nodeimpl.h"
#include "nodekinds.h"
#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// The state and behaviour shared by the sample entries: the "name" and
// "desc" texts, a fixed element name and writing the whole element as one
// piece. `Interface` is the kind's interface (an ISampleResultCfg), `Derived`
// the implementation class, which supplies kNodeType and
// addAttributes(StartTag&), the attributes it writes after "desc".
template <class Interface, class Derived>
class SampleResultNode : public NodeImpl<Interface> {
public:
    const std::wstring& getName() const override { return kinds::tag(Derived::kNodeType); }
    INodeCfg::NodeType getNodeType() const override { return Derived::kNodeType; }

    const std::wstring& getSampleName() const override { return name_; }
    void setSampleName(const std::wstring& name) override { name_ = name; }
    const std::wstring& getDesc() const override { return desc_; }
    void setDesc(const std::wstring& desc) override { desc_ = desc; }

    bool writeXml(IXmlWriter& out) const override {
        return writeAsOnePiece(out, [this](IXmlWriter& whole) {
            this->writeElement(whole, getName(), [this](StartTag& tag) {
                tag.text(L"name", name_).text(L"desc", desc_);
                static_cast<const Derived&>(*this).addAttributes(tag);
            });
        });
    }

protected:
    explicit SampleResultNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}
    // Takes "name" and "desc" (the last of a repeated one wins).
    SampleResultNode(const ElementStart& element, INodeCfg* parent) : NodeImpl<Interface>(parent) {
        forEachAttribute(element, AttributeNaming::Qualified, [&](auto qName, auto value) {
            if (qName == L"name") name_ = value;
            if (qName == L"desc") desc_ = value;
        });
    }
    SampleResultNode(const SampleResultNode& other) = default;

private:
    std::wstring name_;
    std::wstring desc_;
};

}  // namespace kaz::kazparser
