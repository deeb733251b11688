#pragma once

#include "kazparser/IDataCollectorCfg.h"
#include "kazparser/INodeCfg.h"
#include "kazparser/ISampleResultsCfg.h"

namespace kaz::kazparser {

// The data collector of a processing chain together with the sample results
// that describe its output ("UseDataCollector"). Children in getChild order:
// the collector if present, then the sample results if present. Valid
// exactly when a collector is present.
class KAZPARSER_API IUseDataCollectorCfg : public INodeCfg {
public:
    virtual IDataCollectorCfg* getDataCollector() const = 0;
    // Deletes the current collector and adopts `collector` (the one it
    // already holds is kept); null raises "Invalid argument".
    virtual void setDataCollector(IDataCollectorCfg* collector) = 0;
    // Hands back the collector detached, or null; the caller owns it.
    virtual IDataCollectorCfg* releaseDataCollector() = 0;
    // Takes `collector` without setting its parent (null raises "Invalid
    // argument") and hands back the previous one detached, or null.
    virtual IDataCollectorCfg* replaceDataCollector(IDataCollectorCfg* collector) = 0;
    virtual ISampleResultsCfg* getSampleResults() const = 0;
    // As the collector operations, for the sample results.
    virtual void setSampleResults(ISampleResultsCfg* results) = 0;
    virtual ISampleResultsCfg* releaseSampleResults() = 0;
    virtual ISampleResultsCfg* replaceSampleResults(ISampleResultsCfg* results) = 0;
};

}  // namespace kaz::kazparser
