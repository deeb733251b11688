#pragma once

#include <memory>
#include <optional>
#include <string>

#include "kazparser/INodeCfg.h"
#include "kazparser/SourceLocation.h"
#include "tableobj/IXmlWriter.h"
#include "xmltags.h"

namespace kaz::kazparser {

// Where a node read from text started; sourceLocation() finds it here.
class Located {
public:
    std::optional<SourceLocation> location() const {
        return where_.line != 0 ? std::optional(where_) : std::nullopt;
    }
    void locate(SourceLocation where) { where_ = where; }

private:
    SourceLocation where_{0, 0};  // line 0: made by code
};

// The state and behaviour that every node kind shares: the parent pointer,
// the place it was read from, the toXml buffer, and writing an element as
// start tag, children, end tag. `Interface` is the kind's interface.
template <class Interface>
class NodeImpl : public Interface, public Located {
public:
    INodeCfg* getParent() const override { return parent_; }
    void setParent(INodeCfg* parent) override { parent_ = parent; }
    bool isValid() const override { return true; }

    // The text is produced by writeXml into the node's own buffer, so that
    // repeated calls allocate only for growth. Most nodes are never asked,
    // so the buffer is made on the first call.
    const std::wstring& toXml() const override {
        if (!xmlText_) xmlText_ = std::make_unique<std::wstring>();
        xmlText_->clear();
        tableobj::StringXmlWriter out(*xmlText_);
        this->writeXml(out);
        return *xmlText_;
    }

protected:
    explicit NodeImpl(INodeCfg* parent) : parent_(parent) {}
    // A copy keeps the source's parent and place; the text buffer is not copied.
    NodeImpl(const NodeImpl& other) : Interface(), Located(other), parent_(other.parent_) {}
    NodeImpl& operator=(const NodeImpl&) = delete;

    // The start tag of `name` with the attributes `addAttributes(StartTag&)`
    // adds, then each present child in getChild order, then the end tag;
    // answers the end-tag write.
    template <class AddAttributes = NoAttributes>
    bool writeElement(IXmlWriter& out, std::wstring_view name,
                      AddAttributes addAttributes = {}) const {
        return kazparser::writeElement(out, name, addAttributes,
                                       [this](IXmlWriter& to) { writeChildren(to); });
    }

    void writeChildren(IXmlWriter& out) const {
        const unsigned int count = this->getChildCount();
        for (unsigned int i = 0; i < count; ++i)
            if (const INodeCfg* child = this->getChild(i)) child->writeXml(out);
    }

private:
    INodeCfg* parent_;
    mutable std::unique_ptr<std::wstring> xmlText_;
};

}  // namespace kaz::kazparser
