#pragma once

// What the library's readers pass over without a trace: comments and
// processing instructions. Found with libxml2, with their places.

#include <string>
#include <vector>

#include "kazparser/SourceLocation.h"

namespace kazcfg {

struct PassedOver {
    std::wstring markup;  // as written, e.g. "<!-- note -->"
    kaz::kazparser::SourceLocation where;
};

// The comments and processing instructions of a text in document order
// (those before a fatal error, when it is not well-formed).
std::vector<PassedOver> commentsAndInstructions(const std::wstring& text);

}  // namespace kazcfg
