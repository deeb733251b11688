#pragma once

// What loading a text and writing its tree back would silently drop or
// change, found by doing it: the text and what its tree writes are both read
// as generic elements and compared, with the places of the original.

#include <string>

#include "kazparser.h"
#include "problems.h"

namespace kazcfg {

// Warnings at their places in `text`, the text that `root` was loaded from.
// A node whose written text does not read back as XML is reported and taken
// out of `root` (where its parent lets it go), so that the rest can be
// compared.
Problems lossReport(const std::wstring& text, kaz::kazparser::INodeCfg& root);

}  // namespace kazcfg
