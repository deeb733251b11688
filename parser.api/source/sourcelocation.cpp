#include "kazparser/SourceLocation.h"

#include "nodeimpl.h"

namespace kaz::kazparser {

std::optional<SourceLocation> sourceLocation(const INodeCfg* node) {
    const auto* located = dynamic_cast<const Located*>(node);
    return located != nullptr ? located->location() : std::nullopt;
}

}  // namespace kaz::kazparser
