#include "featurescfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

FeaturesCfgImpl::FeaturesCfgImpl(const FeaturesCfgImpl& other) : NodeCollection(other) {
    rebuildIndex();
}

const std::wstring& FeaturesCfgImpl::getName() const {
    return kinds::tag(INodeCfg::Features);
}

unsigned int FeaturesCfgImpl::append(INodeCfg* item) {
    IFeatureCfg* feature = castItem(item, L"append");
    if (!index_.emplace(feature->getName(), getCount()).second) return kNoPosition;
    return appendItem(feature);
}

// A refused feature stays with the caller, although the index is answered.
unsigned int FeaturesCfgImpl::insert(INodeCfg* item, unsigned int index) {
    IFeatureCfg* feature = castItem(item, L"insert");
    checkIndex(index, L"insert");
    if (takenElsewhere(feature->getName(), index)) return index;
    insertItem(feature, index);
    indexFrom(index);
    return index;
}

INodeCfg* FeaturesCfgImpl::replace(INodeCfg* item, unsigned int index) {
    IFeatureCfg* feature = castItem(item, L"replace");
    checkIndex(index, L"replace");
    if (takenElsewhere(feature->getName(), index)) return nullptr;
    IFeatureCfg* previous = replaceItem(feature, index);
    rebuildIndex();
    return previous;
}

INodeCfg* FeaturesCfgImpl::remove(unsigned int index) {
    checkIndex(index, L"remove");
    IFeatureCfg* feature = removeItem(index);
    rebuildIndex();
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

void FeaturesCfgImpl::indexFrom(unsigned int first) {
    for (unsigned int i = first; i < getCount(); ++i) index_[items()[i]->getName()] = i;
}

void FeaturesCfgImpl::rebuildIndex() {
    index_.clear();
    indexFrom(0);
}

}  // namespace kaz::kazparser
