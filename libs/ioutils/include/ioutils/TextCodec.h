#pragma once

#include <string>
#include <string_view>

#include "ioutils/Export.h"

namespace ioutils {

// Conversions between wide text (one code point per wchar_t) and UTF-8.
// Malformed input never fails: each bad sequence or unencodable value
// becomes U+FFFD.
IOUTILS_API std::string utf8FromWide(std::wstring_view text);
IOUTILS_API std::wstring wideFromUtf8(std::string_view text);
// UTF-16 code units in the given byte order, surrogate pairs joined.
IOUTILS_API std::wstring wideFromUtf16(std::string_view bytes, bool bigEndian);

}  // namespace ioutils
