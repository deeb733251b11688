#include "extravaluesconfigcfgimpl.h"

#include "nodekinds.h"

namespace kaz::kazparser {

const std::wstring& ExtraValuesConfigCfgImpl::getName() const {
    return kinds::tag(INodeCfg::ExtraValuesConfig);
}

bool ExtraValuesConfigCfgImpl::hasXValue(const std::wstring& name) const {
    return lastPositionOfValue(name) != kNoPosition;
}

IXValueCfg* ExtraValuesConfigCfgImpl::getXValue(const std::wstring& name) const {
    const unsigned int position = lastPositionOfValue(name);
    if (position == kNoPosition) errors::notChildName(name, KAZ_HERE(kClassName, L"getXValue"));
    return items()[position];
}

// Every value answers getName() with its tag, so the look-up compares the
// "name" attribute instead.
unsigned int ExtraValuesConfigCfgImpl::lastPositionOfValue(const std::wstring& name) const {
    unsigned int found = kNoPosition;
    for (unsigned int i = 0; i < getCount(); ++i)
        if (items()[i]->getParamName() == name) found = i;
    return found;
}

}  // namespace kaz::kazparser
