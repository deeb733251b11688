#pragma once

#include <string>

#include "kazparser.h"

namespace kazcfg {

// The text `root` writes, one element a line, each child indented under its
// parent. Only the white space between a node's start tag, its children and
// its end tag is added; a node that keeps text or markup of its own (a
// feature, a value) stays on its line as the library writes it, so the
// result reads back to a tree that writes the same one-line text.
std::wstring prettyXml(const kaz::kazparser::INodeCfg& root);

}  // namespace kazcfg
