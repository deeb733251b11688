#pragma once

#include <string>

#include "kazparser/IDataModifierCfg.h"
#include "kazparser/INodeCfgCollection.h"

namespace kaz::kazparser {

// The ordered list of data modifiers of a processing chain
// ("UseDataModifiers"), applied in list order.
class KAZPARSER_API IUseDataModifiersCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::operator[];

    // The last modifier whose getName() is `name`; none raises the
    // out-of-range error "<name> is not the name of child object".
    virtual IDataModifierCfg* operator[](const std::wstring& name) const = 0;
};

}  // namespace kaz::kazparser
