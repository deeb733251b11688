#pragma once

#include <string>

#include "kazparser/INodeCfg.h"
#include "kazparser/IParamSetsCfg.h"

namespace kaz::kazparser {

// A node naming an external processing engine ("engineFile", "engineID")
// and carrying the parameter sets handed to it. It has no fixed element
// name: it is written under the name of the element it was built from.
// Its one child is the parameter-set list.
class KAZPARSER_API IPlugInCfg : public INodeCfg {
public:
    // Free text kept in memory only: never read, written or cloned.
    virtual const std::wstring& getNote() const = 0;
    // A copy of the engine file in a string shared by every node of the
    // class: the next call on any such node overwrites it.
    virtual const std::wstring& getEngineFile() const = 0;
    virtual const std::wstring& getEngineID() const = 0;
    virtual void setNote(const std::wstring& note) = 0;
    virtual void setEngineFile(const std::wstring& engineFile) = 0;
    virtual void setEngineID(const std::wstring& engineID) = 0;
    // Deletes the current list and adopts `paramSets`; null raises
    // "Invalid argument". The list it already holds is kept.
    virtual void setParamSets(IParamSetsCfg* paramSets) = 0;
    // The list (still owned by this node), or null.
    virtual IParamSetsCfg* getParamSets() const = 0;
    // Hands back the list detached, or null; the caller owns it.
    virtual IParamSetsCfg* releaseParamSets() = 0;
    // Adopts `paramSets` (null raises "Invalid argument") and hands back the
    // previous list detached, or null; the caller owns it.
    virtual IParamSetsCfg* replaceParamSets(IParamSetsCfg* paramSets) = 0;
    // Sets the element name.
    virtual void setNodeName(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
