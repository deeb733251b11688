#include "samplefixedresultcfgimpl.h"

#include "nodecast.h"
#include "nodeerrors.h"

namespace kaz::kazparser {

bool SampleFixedResultCfgImpl::setChild(INodeCfg* child) {
    auto* data = errors::required(nodeCast<IUseDataCfg>(child), kClassName, L"setChild");
    (void)slot<UseData>().replace(data, nullptr);  // the previous node now belongs to the caller
    return true;
}

}  // namespace kaz::kazparser
