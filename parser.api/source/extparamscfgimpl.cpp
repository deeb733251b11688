#include "extparamscfgimpl.h"

#include "nodekinds.h"

#include <algorithm>
#include <iterator>

namespace kaz::kazparser {

ExtParamsCfgImpl::ExtParamsCfgImpl(const ExtParamsCfgImpl& other) : NodeCollection(other) {
    const auto& source = other.items();
    for (const auto& [name, item] : other.index_) {
        const auto at = static_cast<std::size_t>(
            std::distance(source.begin(), std::find(source.begin(), source.end(), item)));
        if (at < items().size()) index_.emplace(name, items()[at]);
    }
}

const std::wstring& ExtParamsCfgImpl::getName() const {
    return kinds::tag(INodeCfg::ExtParams);
}

unsigned int ExtParamsCfgImpl::append(INodeCfg* item) {
    IExtParamCfg* typed = castItem(item, L"append");
    if (hasExtParam(typed->getParamName())) return kNoPosition;
    makeRoom();  // so that, once the name is entered, the append cannot fail
    index_.emplace(typed->getParamName(), typed);
    return appendItem(typed);
}

unsigned int ExtParamsCfgImpl::insert(INodeCfg* item, unsigned int index) {
    IExtParamCfg* typed = castItem(item, L"insert");
    checkIndex(index, L"insert");
    if (hasExtParam(typed->getParamName())) return kNoPosition;
    makeRoom();
    index_.emplace(typed->getParamName(), typed);
    insertItem(typed, index);
    return index;
}

INodeCfg* ExtParamsCfgImpl::remove(unsigned int index) {
    checkIndex(index, L"remove");
    IExtParamCfg* item = removeItem(index);
    index_.erase(item->getParamName());
    unindex(item);
    return item;
}

INodeCfg* ExtParamsCfgImpl::replace(INodeCfg* item, unsigned int index) {
    IExtParamCfg* typed = castItem(item, L"replace");
    checkIndex(index, L"replace");
    if (items()[index] == typed) return nullptr;  // put in its own place
    // Every key of the previous item, its name included, now finds the new
    // one; the name's entry is made first, as the one step that can fail.
    IExtParamCfg*& byName = index_[items()[index]->getParamName()];
    IExtParamCfg* previous = replaceItem(typed, index);
    for (auto& entry : index_)
        if (entry.second == previous) entry.second = typed;
    byName = typed;
    return previous;
}

void ExtParamsCfgImpl::deleteChildren() {
    index_.clear();
    NodeCollection::deleteChildren();
}

IExtParamCfg* ExtParamsCfgImpl::operator[](const std::wstring& name) const {
    const auto found = index_.find(name);
    if (found == index_.end()) errors::notChildName(name, KAZ_HERE(kClassName, L"operator []"));
    return found->second;
}

// An item renamed after it was indexed, or put in by replace, may be indexed
// under other names than its own; none of them may outlive its removal.
void ExtParamsCfgImpl::unindex(const IExtParamCfg* item) {
    std::erase_if(index_, [item](const auto& entry) { return entry.second == item; });
}

}  // namespace kaz::kazparser
