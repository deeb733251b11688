#include "paramsetscfgimpl.h"

#include "nodekinds.h"

#include <algorithm>

namespace kaz::kazparser {

const std::wstring& ParamSetsCfgImpl::getName() const {
    return kinds::tag(INodeCfg::ParamSets);
}

bool ParamSetsCfgImpl::hasParamSet(const std::wstring& name) const {
    return std::any_of(items().begin(), items().end(),
                       [&](const IParamSetCfg* set) { return set->getName() == name; });
}

IParamSetCfg* ParamSetsCfgImpl::getParamSet(const std::wstring& name) const {
    const unsigned int position = lastPositionOf(name);
    if (position == kNoPosition) errors::nameOutOfRange(name, KAZ_HERE(kClassName, L"getParamSet"));
    return items()[position];
}

unsigned int ParamSetsCfgImpl::insert(IParamSetCfg* paramSet, unsigned int index) {
    return insert(static_cast<INodeCfg*>(paramSet), index);
}

}  // namespace kaz::kazparser
