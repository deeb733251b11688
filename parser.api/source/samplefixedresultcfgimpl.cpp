#include "samplefixedresultcfgimpl.h"

#include <algorithm>

#include "nodeerrors.h"

namespace kaz::kazparser {

SampleFixedResultCfgImpl::SampleFixedResultCfgImpl(const SampleFixedResultCfgImpl& other)
    : SampleResultNode(other) {
    data_.cloneFrom(other.data_, this);
}

INodeCfg* SampleFixedResultCfgImpl::getChild(unsigned int index) const {
    if (index >= getChildCount()) errors::indexOutOfRange(index, KAZ_HERE(kClassName, L"getChild"));
    return data_.get();
}

bool SampleFixedResultCfgImpl::setChild(INodeCfg* child) {
    auto* data = dynamic_cast<IUseDataCfg*>(child);
    if (data == nullptr) errors::invalidArgument(KAZ_HERE(kClassName, L"setChild"));
    if (data == data_.get()) return true;
    readopt(data);
    if (IUseDataCfg* previous = data_.replace(data, nullptr)) displaced_.emplace_back(previous);
    return true;
}

void SampleFixedResultCfgImpl::setData(IUseDataCfg* data) {
    readopt(data);
    data_.set(data, this);
}

void SampleFixedResultCfgImpl::readopt(const IUseDataCfg* data) {
    const auto found = std::find_if(displaced_.begin(), displaced_.end(),
                                    [data](const auto& node) { return node.get() == data; });
    if (found == displaced_.end()) return;
    (void)found->release();  // ownership goes back to the data slot
    displaced_.erase(found);
}

}  // namespace kaz::kazparser
