#include "userefdatacfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseRefDataCfgImpl::getName() const {
    const std::wstring& defaultName = kinds::tag(INodeCfg::UseData);
    return name_.empty() ? defaultName : name_;
}

}  // namespace kaz::kazparser
