#pragma once

#include <array>
#include <string>

#include "kazparser/IUseFixedPresentationElementCfg.h"
#include "kazxml/SAX.h"
#include "usepresentationelementnode.h"

namespace kaz::kazparser {

// "UseFixedPresentationElement": a list entry holding its element inline.
class UseFixedPresentationElementCfgImpl final
    : public UsePresentationElementNode<IUseFixedPresentationElementCfg,
                                        UseFixedPresentationElementCfgImpl> {
public:
    static constexpr const wchar_t* kClassName =
        L"kaz::kazparser::UseFixedPresentationElementCfgImpl";
    static constexpr NodeType kNodeType = UseFixedPresentationElement;
    static const std::wstring& tag();

    explicit UseFixedPresentationElementCfgImpl(INodeCfg* parent)
        : UsePresentationElementNode(parent) {}
    // Reads "active", "label", "desc", "labelStringID", "descStringID",
    // "elemID" and "refMainData"; other attributes are ignored.
    UseFixedPresentationElementCfgImpl(kaz::xml::ISAXAttributes* attributes, INodeCfg* parent)
        : UsePresentationElementNode(readAttributes(attributes, AttributeNaming::Local), parent) {}

    INodeCfg* clone() const override { return new UseFixedPresentationElementCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override { return writeReference(out, {}); }
    void deleteChildren() override;
    // Takes extension parameters and an element; false for other kinds.
    bool setChild(INodeCfg* child) override;

    IPresentationElementCfg* getPresentationElement() const override { return element_.get(); }
    void setPresentationElement(IPresentationElementCfg* element) override;
    IPresentationElementCfg* releasePresentationElement() override { return element_.release(); }

    std::array<INodeCfg*, 2> childSlots() const { return {extParams_.get(), element_.get()}; }

private:
    UseFixedPresentationElementCfgImpl(const UseFixedPresentationElementCfgImpl& other);

    ChildSlot<IPresentationElementCfg> element_;
};

}  // namespace kaz::kazparser
