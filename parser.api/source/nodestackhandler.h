#pragma once

#include <memory>
#include <vector>

#include "contentsink.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/SourceLocation.h"
#include "kazxml/SAX.h"

namespace kaz::kazparser {

// What the tree builders share: the stack of open elements' nodes, the node
// of the element that ended last, and who owns which node while a parse
// runs. Whatever the handler still owns when it is destroyed is freed, so
// that no parse, finished or failed, leaks a node.
class NodeStackHandler : public kaz::xml::SAXDefaultHandler {
public:
    explicit NodeStackHandler(INodeCfg* parent) : parent_(parent) {}
    ~NodeStackHandler() override;
    NodeStackHandler(const NodeStackHandler&) = delete;
    NodeStackHandler& operator=(const NodeStackHandler&) = delete;

    long putDocumentLocator(kaz::xml::ISAXLocator* locator) override;

    // The node of the document element once it ended, handed to the caller;
    // null before.
    INodeCfg* takeRoot();
    // The node of the element that ended last: the finished root itself, or
    // a copy (with the factory's parent) of a node still held by an
    // unfinished tree; null when no element ended.
    INodeCfg* takeLastEnded();

protected:
    // Where the element being started begins; line 0 when the reader does
    // not tell.
    SourceLocation startTagLocation() const;
    INodeCfg* factoryParent() const { return parent_; }
    // The node of the innermost open element that made one; null when none.
    INodeCfg* top() const { return stack_.empty() ? nullptr : stack_.back().node; }
    // Where that node takes its element's content; null when it takes none.
    ContentSink* topContent() const { return stack_.empty() ? nullptr : stack_.back().content; }
    // The parent of the next element's node.
    INodeCfg* nextParent() const { return top() != nullptr ? top() : parent_; }
    // Opens an element whose node is `node`, taking its content through
    // `content` (null: none) in the way `mode` tells the handler. The stack
    // owns `node` from here, even when it cannot grow.
    void push(INodeCfg* node, ContentSink* content, int mode = 0) {
        std::unique_ptr<INodeCfg> owned(node);
        stack_.push_back({node, content, mode, true});
        owned.release();
    }
    // Opens an element that made no node: its content goes where its
    // parent's goes.
    void pushNoNode() { stack_.push_back({top(), topContent(), topMode(), false}); }
    // The mode the innermost open element was pushed with; 0 when none is open.
    int topMode() const { return stack_.empty() ? 0 : stack_.back().mode; }
    bool topMadeNode() const { return stack_.back().madeNode; }
    void popNoNode() { stack_.pop_back(); }
    // Takes the top node off the stack and records it as the last ended.
    // When no node remains open it is the finished root, owned here;
    // otherwise the caller must hand it to the new top (or keep it).
    INodeCfg* pop();

private:
    struct Frame {
        INodeCfg* node;
        ContentSink* content;
        int mode;
        bool madeNode;
    };

    kaz::xml::IStartTagLocator* startTags_ = nullptr;
    INodeCfg* parent_;
    std::vector<Frame> stack_;
    INodeCfg* lastEnded_ = nullptr;
    INodeCfg* finishedRoot_ = nullptr;
};

}  // namespace kaz::kazparser
