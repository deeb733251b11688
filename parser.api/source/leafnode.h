#pragma once

#include <string>

#include "nodeerrors.h"
#include "nodeimpl.h"

namespace kaz::kazparser {

// Kinds whose content is a value or a text instead of child nodes. They
// answer no child position: getChild raises the out-of-range error for
// every index. `Derived` names itself in error contexts through
// `Derived::kClassName`.
template <class Interface, class Derived>
class LeafNode : public NodeImpl<Interface> {
public:
    INodeCfg* getChild(unsigned int index) const override {
        errors::indexOutOfRange(index, KAZ_HERE(Derived::kClassName, L"getChild"));
    }
    unsigned int getChildCount() const override { return 0; }
    void deleteChildren() override {}

protected:
    explicit LeafNode(INodeCfg* parent) : NodeImpl<Interface>(parent) {}
    LeafNode(const LeafNode& other) = default;

    // "<name>", `content` as it is, "</name>"; answers the end-tag write.
    bool writeText(IXmlWriter& out, const std::wstring& content) const {
        const std::wstring& name = this->getName();
        out.write(StartTag(name).str());
        if (!content.empty()) out.write(content);
        return out.write(endTag(name));
    }
};

}  // namespace kaz::kazparser
