#pragma once

#include <string>

#include "kazparser/IExtParamCfg.h"
#include "kazparser/INodeCfgCollection.h"

namespace kaz::kazparser {

// The list of extension parameters ("ExtParams"), indexed by their "name".
// Names are unique: append and insert answer kNoPosition for a name that
// is already indexed and do not take the item. replace indexes the new item
// under the name of the item it replaces.
class KAZPARSER_API IExtParamsCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::operator[];
    // The item indexed under `name`; an unknown name raises the
    // out-of-range error "<name> is not the name of child object".
    virtual IExtParamCfg* operator[](const std::wstring& name) const = 0;
    virtual bool hasExtParam(const std::wstring& name) const = 0;
};

}  // namespace kaz::kazparser
