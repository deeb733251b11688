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

    // The start tag of getName() with the attributes `addAttributes(StartTag&)`
    // adds, then `content` written as `form` says (a piece of its own, left
    // out when empty), then the end tag; answers the end-tag write.
    template <class AddAttributes = NoAttributes>
    bool writeText(IXmlWriter& out, std::wstring_view content, Content form = Content::AsIs,
                   AddAttributes addAttributes = {}) const {
        return kazparser::writeElement(out, this->getName(), addAttributes,
                                       [&](IXmlWriter& to) { writeContent(to, content, form); });
    }
};

}  // namespace kaz::kazparser
