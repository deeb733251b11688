#include "inputconfigcfgimpl.h"

namespace kaz::kazparser {

const std::wstring& InputConfigCfgImpl::getName() const {
    static const std::wstring name = L"InputConfig";
    return name;
}

}  // namespace kaz::kazparser
