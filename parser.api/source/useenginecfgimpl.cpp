#include "useenginecfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseEngineCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseEngine);
}

}  // namespace kaz::kazparser
