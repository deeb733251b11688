#pragma once

#include "kazparser/INodeCfg.h"
#include "kazparser/IUseDataCfg.h"
#include "kazparser/IUseDataCollectorCfg.h"
#include "kazparser/IUseDataModifiersCfg.h"

namespace kaz::kazparser {

// Where a presentation element's data come from ("InputConfig"): tables
// (a "UseTables" value) or a data collector, then an optional list of data
// modifiers. The inputs are alternatives as in IUseEngineCfg: the setters
// keep one, the replace operations can leave both, and then the tables win.
class KAZPARSER_API IInputConfigCfg : public INodeCfg {
public:
    virtual IUseDataCfg* getUseTables() const = 0;
    // Deletes both inputs and adopts `tables`; null raises "Invalid argument".
    virtual void setUseTables(IUseDataCfg* tables) = 0;
    // Hands back the tables detached, or null; the caller owns them.
    virtual IUseDataCfg* releaseUseTables() = 0;
    // Adopts `tables` and hands back the previous ones detached (or null);
    // the collector stays. Null raises "Invalid argument".
    virtual IUseDataCfg* replaceUseTables(IUseDataCfg* tables) = 0;
    // As the tables operations, for the collector reference.
    virtual IUseDataCollectorCfg* getUseDataCollector() const = 0;
    virtual void setUseDataCollector(IUseDataCollectorCfg* collector) = 0;
    virtual IUseDataCollectorCfg* releaseUseDataCollector() = 0;
    virtual IUseDataCollectorCfg* replaceUseDataCollector(IUseDataCollectorCfg* collector) = 0;
    // As the tables operations, for the modifier list (which is no
    // alternative to anything).
    virtual IUseDataModifiersCfg* getUseDataModifiers() const = 0;
    virtual void setUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
    virtual IUseDataModifiersCfg* releaseUseDataModifiers() = 0;
    virtual IUseDataModifiersCfg* replaceUseDataModifiers(IUseDataModifiersCfg* modifiers) = 0;
};

}  // namespace kaz::kazparser
