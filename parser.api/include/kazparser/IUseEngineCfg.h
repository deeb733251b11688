#pragma once

#include "kazparser/IDataCfg.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"

namespace kaz::kazparser {

// A small processing chain that yields a value ("UseEngine"): its input
// comes from tables (a "UseTables" value) or from a data collector, then
// passes an optional list of data modifiers. Its data type is String.
//
// The setters keep at most one of the two inputs; the replace operations
// can leave both, and then the tables are the input: the collector stays
// owned but is neither a child position nor written.
class KAZPARSER_API IUseEngineCfg : public IDataCfg {
public:
    virtual IUseDataModifiersCfg* getUseDataModifiers() const = 0;
    virtual IUseDataCfg* getUseTables() const = 0;
    virtual IUseDataCollectorCfg* getUseDataCollector() const = 0;
    // Delete both inputs and adopt the argument; null raises "Invalid argument".
    virtual void setUseTables(IUseDataCfg* tables) = 0;
    virtual void setUseDataCollector(IUseDataCollectorCfg* collector) = 0;
    // Deletes the current list and adopts the argument; null raises.
    virtual void setUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    // Take the argument and hand back the previous child detached (or null);
    // the other input is left as it is. Null raises "Invalid argument".
    // replaceUseTables does not make the new tables a child of this node.
    virtual IUseDataCfg* replaceUseTables(IUseDataCfg* tables) = 0;
    virtual IUseDataCollectorCfg* replaceUseDataCollector(IUseDataCollectorCfg* collector) = 0;
    virtual IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    // Hand back the child detached, or null; the caller owns it.
    virtual IUseDataCollectorCfg* releaseUseDataCollector() = 0;
    virtual IUseDataModifiersCfg* releaseUseDataModifiers() = 0;
    virtual IUseDataCfg* releaseUseTables() = 0;
};

}  // namespace kaz::kazparser
