#include "usedatamodifierscfgimpl.h"

namespace kaz::kazparser {

const std::wstring& UseDataModifiersCfgImpl::getName() const {
    static const std::wstring name = L"UseDataModifiers";
    return name;
}

IDataModifierCfg* UseDataModifiersCfgImpl::operator[](const std::wstring& name) const {
    const unsigned int position = lastPositionOf(name);
    if (position == kNoPosition) errors::notChildName(name, KAZ_HERE(kClassName, L"operator []"));
    return items()[position];
}

}  // namespace kaz::kazparser
