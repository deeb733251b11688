#pragma once

#include <string>

#include "kazparser/IUseRefPresentationElementCfg.h"
#include "kazxml/SAX.h"
#include "nodecast.h"
#include "usepresentationelementnode.h"

namespace kaz::kazparser {

// "UseRefPresentationElement": a list entry naming the file that holds its
// element.
class UseRefPresentationElementCfgImpl final
    : public UsePresentationElementNode<IUseRefPresentationElementCfg,
                                        UseRefPresentationElementCfgImpl> {
public:
    static constexpr const wchar_t* kClassName =
        L"kaz::kazparser::UseRefPresentationElementCfgImpl";
    static constexpr NodeType kNodeType = UseRefPresentationElement;
    static const std::wstring& tag();

    explicit UseRefPresentationElementCfgImpl(INodeCfg* parent)
        : UsePresentationElementNode(parent) {}
    // Reads the fixed reference's attributes and "refFileName".
    UseRefPresentationElementCfgImpl(const ElementStart& element, INodeCfg* parent);

    INodeCfg* clone() const override { return new UseRefPresentationElementCfgImpl(*this); }
    bool writeXml(IXmlWriter& out) const override { return writeReference(out, refFileName_); }
    // Never answers false: anything but extension parameters (null too)
    // reaches setExtParams as null and raises there.
    bool setChild(INodeCfg* child) override {
        setExtParams(nodeCast<IExtParamsCfg>(child));
        return true;
    }

    bool setRefFileName(const std::wstring& fileName) override;
    const std::wstring& getRefFileName() const override { return refFileName_; }

private:
    UseRefPresentationElementCfgImpl(const UseRefPresentationElementCfgImpl& other) = default;

    std::wstring refFileName_;
};

}  // namespace kaz::kazparser
