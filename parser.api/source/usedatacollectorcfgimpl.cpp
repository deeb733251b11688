#include "usedatacollectorcfgimpl.h"

#include "nodekinds.h"

#include "nodeerrors.h"
#include "xmltags.h"

namespace kaz::kazparser {

UseDataCollectorCfgImpl::UseDataCollectorCfgImpl(const UseDataCollectorCfgImpl& other)
    : NodeImpl(other) {
    collector_.cloneFrom(other.collector_, this);
    results_.cloneFrom(other.results_, this);
}

const std::wstring& UseDataCollectorCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseDataCollector);
}

unsigned int UseDataCollectorCfgImpl::getChildCount() const {
    return (collector_ ? 1u : 0u) + (results_ ? 1u : 0u);
}

// The present children in order: the collector, then the sample results.
INodeCfg* UseDataCollectorCfgImpl::getChild(unsigned int index) const {
    if (index >= getChildCount()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, L"getChild"));
    if (index == 0 && collector_) return collector_.get();
    return results_.get();
}

void UseDataCollectorCfgImpl::deleteChildren() {
    collector_.reset();
    results_.reset();
}

bool UseDataCollectorCfgImpl::writeXml(IXmlWriter& out) const {
    const std::wstring& name = getName();
    return writeElement(out, StartTag(name).str(), name);
}

bool UseDataCollectorCfgImpl::setChild(INodeCfg* child) {
    if (child == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, L"setChild"));
    switch (child->getNodeType()) {
        case DataCollector:
            setDataCollector(dynamic_cast<IDataCollectorCfg*>(child));
            return true;
        case SampleResults:
            setSampleResults(dynamic_cast<ISampleResultsCfg*>(child));
            return true;
        default:
            return false;
    }
}

void UseDataCollectorCfgImpl::setDataCollector(IDataCollectorCfg* collector) {
    if (collector == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, L"setDataCollector"));
    collector_.set(collector, this);
}

IDataCollectorCfg* UseDataCollectorCfgImpl::replaceDataCollector(IDataCollectorCfg* collector) {
    if (collector == nullptr)
        errors::invalidArgument(KAZ_HERE(kClassName, L"replaceDataCollector"));
    return collector_.replace(collector, nullptr);
}

void UseDataCollectorCfgImpl::setSampleResults(ISampleResultsCfg* results) {
    if (results == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, L"setSampleResults"));
    results_.set(results, this);
}

ISampleResultsCfg* UseDataCollectorCfgImpl::replaceSampleResults(ISampleResultsCfg* results) {
    if (results == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, L"replaceSampleResults"));
    return results_.replace(results, nullptr);
}

}  // namespace kaz::kazparser
