#pragma once

#include "kazparser/ISampleResultCfg.h"
#include "kazparser/IUseDataCfg.h"

namespace kaz::kazparser {

// A sample entry holding its value inline ("SampleFixedResult") as at most
// one data node. setChild takes a data node without re-parenting it and lets
// go of the data node it displaces: detached and alive, it is the caller's to
// delete (take it with getData() first; setData deletes it).
class KAZPARSER_API ISampleFixedResultCfg : public ISampleResultCfg {
public:
    // The data node (still owned by this entry), or null.
    virtual IUseDataCfg* getData() const = 0;
    // Deletes the current data node and adopts `data`; null leaves the
    // entry without data.
    virtual void setData(IUseDataCfg* data) = 0;
};

}  // namespace kaz::kazparser
