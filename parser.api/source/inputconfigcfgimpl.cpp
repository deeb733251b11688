#include "inputconfigcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& InputConfigCfgImpl::getName() const {
    return kinds::tag(INodeCfg::InputConfig);
}

}  // namespace kaz::kazparser
