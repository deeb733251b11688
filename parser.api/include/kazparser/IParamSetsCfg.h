#pragma once

#include <string>

#include "kazparser/INodeCfgCollection.h"
#include "kazparser/IParamSetCfg.h"

namespace kaz::kazparser {

// The list of parameter sets ("ParamSets") of a plug-in. Look-ups by name
// compare with each set's getName() (its element name).
class KAZPARSER_API IParamSetsCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::append;
    using INodeCfgCollection::insert;

    // A parameter-set list can always be edited; answers true.
    virtual bool isEditable() const = 0;
    virtual bool hasParamSet(const std::wstring& name) const = 0;

    // Adds at the end and answers the new count; kNoPosition for null.
    virtual unsigned int append(IParamSetCfg* paramSet) = 0;
    virtual IParamSetCfg* getParamSet(unsigned int index) const = 0;
    // The last set of that name; none raises "index <name> is out of range".
    virtual IParamSetCfg* getParamSet(const std::wstring& name) const = 0;
    // Removes the set and deletes it; answers true.
    virtual bool erase(unsigned int index) = 0;
    // Puts `paramSet` at `index` and deletes the set that was there.
    virtual bool replaceParamSet(IParamSetCfg* paramSet, unsigned int index) = 0;
    virtual unsigned int insert(IParamSetCfg* paramSet, unsigned int index) = 0;
};

}  // namespace kaz::kazparser
