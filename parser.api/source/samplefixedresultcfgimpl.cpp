#include "samplefixedresultcfgimpl.h"

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
    (void)data_.replace(data, nullptr);  // the previous node now belongs to the caller
    return true;
}

void SampleFixedResultCfgImpl::setData(IUseDataCfg* data) {
    data_.set(data, this);
}

}  // namespace kaz::kazparser
