#pragma once

#include <string>

#include "kazparser/Export.h"

namespace kaz::kazparser {

// Element text escaping, in place: ampersands (an "&" followed by "a" or "A"
// is taken to start an entity and kept), then "<" and ">".
KAZPARSER_API void escapeText(std::wstring& text);
// Text escaping, then double quotation marks; the apostrophe is kept.
KAZPARSER_API void escapeAttribute(std::wstring& text);

}  // namespace kaz::kazparser
