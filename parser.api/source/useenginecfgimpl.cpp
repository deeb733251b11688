#include "useenginecfgimpl.h"

namespace kaz::kazparser {

const std::wstring& UseEngineCfgImpl::getName() const {
    static const std::wstring name = L"UseEngine";
    return name;
}

}  // namespace kaz::kazparser
