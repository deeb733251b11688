#pragma once

#include <string>
#include <string_view>

#include "tableobj/Export.h"

namespace tableobj {

// Escapes element text in place: "&" becomes "&amp;" unless an "a" or "A"
// follows it (so entities such as "&amp;" and "&apos;" pass through), then
// "<" and ">" become "&lt;" and "&gt;". After each "&" the search resumes
// three characters on. Stored configurations were written with these exact
// rules, so they must not change.
TABLEOBJ_API void escapeText(std::wstring& text);
// As escapeText, then '"' becomes "&quot;". Apostrophes stay as they are.
TABLEOBJ_API void escapeAttribute(std::wstring& text);

// The same escaping of `text`, appended to `out`, for text that is written:
// the characters a reader normalises (carriage returns, and in attribute
// values tabs and line breaks) become character references, so that the
// text reads back the same.
TABLEOBJ_API void appendEscapedText(std::wstring& out, std::wstring_view text);
TABLEOBJ_API void appendEscapedAttribute(std::wstring& out, std::wstring_view text);

}  // namespace tableobj
