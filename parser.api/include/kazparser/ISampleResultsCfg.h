#pragma once

#include <string>

#include "kazparser/INodeCfgCollection.h"
#include "kazparser/ISampleResultCfg.h"

namespace kaz::kazparser {

// The named list of sample entries ("SampleResults") that describes what a
// data collector yields. Besides the ordered list it keeps an index from
// each entry's sample name to the entry.
class KAZPARSER_API ISampleResultsCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::operator[];

    // Whether the name index holds `name`.
    virtual bool hasSampleResult(const std::wstring& name) const = 0;
    // The entry the name index maps `name` to; an unknown name raises the
    // out-of-range error "<name> is not the name of child object".
    virtual ISampleResultCfg* operator[](const std::wstring& name) const = 0;
};

}  // namespace kaz::kazparser
