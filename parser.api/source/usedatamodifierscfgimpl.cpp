#include "usedatamodifierscfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& UseDataModifiersCfgImpl::getName() const {
    return kinds::tag(INodeCfg::UseDataModifiers);
}

IDataModifierCfg* UseDataModifiersCfgImpl::operator[](const std::wstring& name) const {
    const unsigned int position = lastPositionOf(name);
    if (position == kNoPosition) errors::notChildName(name, KAZ_HERE(kClassName, L"operator []"));
    return items()[position];
}

}  // namespace kaz::kazparser
