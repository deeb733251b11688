#include "sampleresultscfgimpl.h"

#include "nodekinds.h"

#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

SampleResultsCfgImpl::SampleResultsCfgImpl(const ElementStart& element, INodeCfg* parent)
    : NodeCollection(parent) {
    forEachAttribute(element, AttributeNaming::Qualified, [&](auto qName, auto value) {
        if (qName == L"name") name_ = value;
    });
}

SampleResultsCfgImpl::SampleResultsCfgImpl(const SampleResultsCfgImpl& other)
    : NodeCollection(other), name_(other.name_), index_(freshIndex()) {}

const std::wstring& SampleResultsCfgImpl::getName() const {
    return kinds::tag(INodeCfg::SampleResults);
}

bool SampleResultsCfgImpl::writeXml(IXmlWriter& out) const {
    return writeElement(out, getName(), [this](StartTag& tag) { tag.text(L"name", name_); });
}

// Each change goes through the shared list rules first, so that a refused
// call leaves the index as it was.
unsigned int SampleResultsCfgImpl::append(INodeCfg* item) {
    const unsigned int count = NodeCollection::append(item);
    reindex(index_, [&] { removeItem(count - 1); });
    return count;
}

unsigned int SampleResultsCfgImpl::insert(INodeCfg* item, unsigned int index) {
    NodeCollection::insert(item, index);
    reindex(index_, [&] { removeItem(index); });
    return index;
}

INodeCfg* SampleResultsCfgImpl::replace(INodeCfg* item, unsigned int index) {
    INodeCfg* previous = NodeCollection::replace(item, index);
    if (previous != nullptr)
        reindex(index_, [&] { replaceItem(static_cast<ISampleResultCfg*>(previous), index); });
    return previous;
}

INodeCfg* SampleResultsCfgImpl::remove(unsigned int index) {
    INodeCfg* item = NodeCollection::remove(index);
    reindex(index_, [&] { insertItem(static_cast<ISampleResultCfg*>(item), index); });
    return item;
}

void SampleResultsCfgImpl::deleteChildren() {
    index_.clear();
    NodeCollection::deleteChildren();
}

bool SampleResultsCfgImpl::hasSampleResult(const std::wstring& name) const {
    return index_.count(name) != 0;
}

ISampleResultCfg* SampleResultsCfgImpl::operator[](const std::wstring& name) const {
    if (!hasSampleResult(name)) errors::notChildName(name, KAZ_HERE(kClassName, L"operator []"));
    return index_.at(name);
}

// Rebuilt from the list, so that the index never names an entry the list
// no longer holds; a later entry of the same name wins.
std::map<std::wstring, ISampleResultCfg*> SampleResultsCfgImpl::freshIndex() const {
    std::map<std::wstring, ISampleResultCfg*> index;
    for (ISampleResultCfg* item : items()) index[item->getSampleName()] = item;
    return index;
}

}  // namespace kaz::kazparser
