#pragma once

#include <optional>

#include "kazparser/Export.h"
#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// Where a node's element starts in the text it was read from: the line and
// the column of its "<", both counted from 1, the column in characters.
struct SourceLocation {
    unsigned line;
    unsigned column;

    bool operator==(const SourceLocation&) const = default;
};

// The start of the element that `node` was read from. None for a node made
// by code, and for null; a clone answers its source's location. Nodes read
// from a referenced file answer places in that file.
KAZPARSER_API std::optional<SourceLocation> sourceLocation(const INodeCfg* node);

}  // namespace kaz::kazparser
