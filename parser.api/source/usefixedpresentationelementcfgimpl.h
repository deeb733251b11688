#pragma once

#include <string>

#include "kazparser/IUseFixedPresentationElementCfg.h"
#include "kazxml/SAX.h"
#include "usepresentationelementnode.h"

namespace kaz::kazparser {

// "UseFixedPresentationElement": a list entry holding its element inline.
class UseFixedPresentationElementCfgImpl final
    : public UsePresentationElementNode<
          IUseFixedPresentationElementCfg, UseFixedPresentationElementCfgImpl,
          Slot<IPresentationElementCfg, INodeCfg::PresentationElement>> {
public:
    static constexpr const wchar_t* kClassName =
        L"kaz::kazparser::UseFixedPresentationElementCfgImpl";
    static constexpr NodeType kNodeType = UseFixedPresentationElement;
    static const std::wstring& tag();

    explicit UseFixedPresentationElementCfgImpl(INodeCfg* parent)
        : UsePresentationElementNode(parent) {}
    // Reads "active", "label", "desc", "labelStringID", "descStringID",
    // "elemID" and "refMainData"; other attributes are ignored.
    UseFixedPresentationElementCfgImpl(const ElementStart& element, INodeCfg* parent)
        : UsePresentationElementNode(element, parent) {}

    INodeCfg* clone() const override { return new UseFixedPresentationElementCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override { return writeReference(out, {}); }

    IPresentationElementCfg* getPresentationElement() const override {
        return child<PresentationElement>();
    }
    void setPresentationElement(IPresentationElementCfg* element) override {
        setSlot<PresentationElement>(element, L"setPresentationElement");
    }
    IPresentationElementCfg* releasePresentationElement() override {
        return releaseSlot<PresentationElement>();
    }

private:
    UseFixedPresentationElementCfgImpl(const UseFixedPresentationElementCfgImpl& other) = default;
};

}  // namespace kaz::kazparser
