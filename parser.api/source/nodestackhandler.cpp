#include "nodestackhandler.h"

namespace kaz::kazparser {

NodeStackHandler::~NodeStackHandler() {
    // Each open element's node owns the children that were attached to it.
    for (const Frame& frame : stack_)
        if (frame.madeNode) delete frame.node;
    delete finishedRoot_;
}

long NodeStackHandler::putDocumentLocator(kaz::xml::ISAXLocator* locator) {
    startTags_ = dynamic_cast<kaz::xml::IStartTagLocator*>(locator);
    return kaz::xml::S_OK;
}

SourceLocation NodeStackHandler::startTagLocation() const {
    int line = 0, column = 0;
    if (startTags_ == nullptr || kaz::xml::failed(startTags_->getStartTagPosition(&line, &column)))
        return {0, 0};
    return {static_cast<unsigned>(line), static_cast<unsigned>(column)};
}

INodeCfg* NodeStackHandler::pop() {
    INodeCfg* node = stack_.back().node;
    stack_.pop_back();
    lastEnded_ = node;
    if (top() == nullptr && node != finishedRoot_) {
        // Elements that made no node can leave several roots; the last one counts.
        delete finishedRoot_;
        finishedRoot_ = node;
    }
    return node;
}

INodeCfg* NodeStackHandler::takeRoot() {
    INodeCfg* root = finishedRoot_;
    if (root == lastEnded_) lastEnded_ = nullptr;
    finishedRoot_ = nullptr;
    return root;
}

INodeCfg* NodeStackHandler::takeLastEnded() {
    if (lastEnded_ == nullptr) return nullptr;
    if (lastEnded_ == finishedRoot_) return takeRoot();
    INodeCfg* copy = lastEnded_->clone();
    copy->setParent(parent_);
    return copy;
}

}  // namespace kaz::kazparser
