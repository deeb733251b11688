#include "featurescfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

FeaturesCfgImpl::FeaturesCfgImpl(const FeaturesCfgImpl& other)
    : NodeCollection(other), index_(freshIndex()) {}

const std::wstring& FeaturesCfgImpl::getName() const {
    return kinds::tag(INodeCfg::Features);
}

unsigned int FeaturesCfgImpl::append(INodeCfg* item) {
    IFeatureCfg* feature = castItem(item, L"append");
    if (contains(feature->getName())) return kNoPosition;
    makeRoom();  // so that, once the name is entered, the append cannot fail
    index_.emplace(feature->getName(), getCount());
    return appendItem(feature);
}

// A refused feature stays with the caller, although the index is answered.
unsigned int FeaturesCfgImpl::insert(INodeCfg* item, unsigned int index) {
    IFeatureCfg* feature = castItem(item, L"insert");
    checkIndex(index, L"insert");
    if (takenElsewhere(feature->getName(), index)) return index;
    insertItem(feature, index);
    reindex(index_, [&] { removeItem(index); });
    return index;
}

INodeCfg* FeaturesCfgImpl::replace(INodeCfg* item, unsigned int index) {
    IFeatureCfg* feature = castItem(item, L"replace");
    checkIndex(index, L"replace");
    if (takenElsewhere(feature->getName(), index)) return nullptr;
    IFeatureCfg* previous = replaceItem(feature, index);
    if (previous != nullptr) reindex(index_, [&] { replaceItem(previous, index); });
    return previous;
}

INodeCfg* FeaturesCfgImpl::remove(unsigned int index) {
    checkIndex(index, L"remove");
    IFeatureCfg* feature = removeItem(index);
    reindex(index_, [&] { insertItem(feature, index); });
    return feature;
}

void FeaturesCfgImpl::deleteChildren() {
    index_.clear();
    NodeCollection::deleteChildren();
}

IFeatureCfg* FeaturesCfgImpl::operator[](const std::wstring& name) const {
    return items()[positionOf(name, L"operator []")];
}

IFeatureCfg* FeaturesCfgImpl::replace(INodeCfg* feature, const std::wstring& name) {
    return static_cast<IFeatureCfg*>(replace(feature, positionOf(name, L"replace")));
}

IFeatureCfg* FeaturesCfgImpl::remove(const std::wstring& name) {
    return static_cast<IFeatureCfg*>(remove(positionOf(name, L"remove")));
}

bool FeaturesCfgImpl::takenElsewhere(const std::wstring& name, unsigned int index) const {
    return contains(name) && name != items()[index]->getName();
}

unsigned int FeaturesCfgImpl::positionOf(const std::wstring& name, const wchar_t* method) const {
    const auto found = index_.find(name);
    if (found == index_.end()) errors::notChildName(name, KAZ_HERE(kClassName, method));
    return found->second;
}

std::map<std::wstring, unsigned int> FeaturesCfgImpl::freshIndex() const {
    std::map<std::wstring, unsigned int> index;
    for (unsigned int i = 0; i < getCount(); ++i) index[items()[i]->getName()] = i;
    return index;
}

}  // namespace kaz::kazparser
