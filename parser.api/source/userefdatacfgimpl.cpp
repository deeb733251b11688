#include "userefdatacfgimpl.h"

namespace kaz::kazparser {

const std::wstring& UseRefDataCfgImpl::getName() const {
    static const std::wstring defaultName = L"UseData";
    return name_.empty() ? defaultName : name_;
}

}  // namespace kaz::kazparser
