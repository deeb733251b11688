#include "nodestackhandler.h"

#include <string>
#include <string_view>
#include <unordered_map>

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

namespace {

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view name) const noexcept {
        return std::hash<std::wstring_view>()(name);
    }
};

// Beyond this many names a text is not of the common vocabulary: the table
// starts again rather than grow with it.
constexpr std::size_t kMostSharedNames = 4096;

}  // namespace

SharedName NodeStackHandler::elementName(const wchar_t* qName, int length) {
    thread_local std::unordered_map<std::wstring, SharedName, NameHash, std::equal_to<>> names;
    const std::wstring_view name(qName, static_cast<std::size_t>(length));
    auto found = names.find(name);
    if (found != names.end()) return found->second;
    if (names.size() >= kMostSharedNames) names.clear();
    return names.emplace(name, SharedName(name)).first->second;
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
