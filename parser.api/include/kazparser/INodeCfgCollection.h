#pragma once

#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// A node holding an ordered list of like children. Each collection kind
// accepts one item interface and refuses other nodes with "Invalid argument".
class KAZPARSER_API INodeCfgCollection : public INodeCfg {
public:
    // Adds at the end and answers the new count.
    virtual unsigned int append(INodeCfg* item) = 0;
    // Places the item before the item now at `index` (which must exist, so
    // insert never adds at the end) and answers `index`.
    virtual unsigned int insert(INodeCfg* item, unsigned int index) = 0;
    // Same as getChild(index).
    virtual INodeCfg* operator[](unsigned int index) const = 0;
    // Puts the item at `index` and hands back the previous one, detached.
    virtual INodeCfg* replace(INodeCfg* item, unsigned int index) = 0;
    // Takes the item at `index` out and hands it back, detached.
    virtual INodeCfg* remove(unsigned int index) = 0;
    virtual unsigned int getCount() const = 0;
};

// What a position-answering or typed adding operation answers for "none".
constexpr unsigned int kNoPosition = 0xFFFFFFFFu;

}  // namespace kaz::kazparser
