#pragma once

#include <string>

#include "kazparser/IFeatureCfg.h"
#include "kazparser/INodeCfgCollection.h"

namespace kaz::kazparser {

// The features of a presentation element or group ("Features"), in order
// and indexed by name. A name is taken once: append answers kNoPosition for
// a name already present and does not take the feature; insert and replace
// refuse it silently (insert answering the index, replace null) unless it
// is the name of the feature at that index. Unknown names raise the
// out-of-range error "<name> is not the name of child object".
class KAZPARSER_API IFeaturesCfg : public INodeCfgCollection {
public:
    using INodeCfgCollection::operator[];
    using INodeCfgCollection::remove;
    using INodeCfgCollection::replace;

    virtual IFeatureCfg* operator[](const std::wstring& name) const = 0;
    virtual bool contains(const std::wstring& name) const = 0;
    // replace(feature, index) at the position of `name`.
    virtual IFeatureCfg* replace(INodeCfg* feature, const std::wstring& name) = 0;
    // remove(index) at the position of `name`.
    virtual IFeatureCfg* remove(const std::wstring& name) = 0;
};

}  // namespace kaz::kazparser
