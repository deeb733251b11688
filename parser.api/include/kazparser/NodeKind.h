#pragma once

#include <string_view>

#include "kazparser/Export.h"
#include "kazparser/INodeCfg.h"

namespace kaz::kazparser {

// The name of a node type, as INodeCfg::NodeType spells it ("ParamSet",
// "UseRefData", "XNode", ...); empty for a value no kind has.
KAZPARSER_API std::wstring_view kindName(INodeCfg::NodeType type);

}  // namespace kaz::kazparser
