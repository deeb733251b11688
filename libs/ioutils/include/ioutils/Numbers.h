#pragma once

#include <string>
#include <string_view>

#include "ioutils/Export.h"

namespace ioutils {

// Number reading and writing that never depends on the process locale:
// a point is always the decimal separator.

// Optional leading blanks and sign, then the longest decimal number prefix
// (digits, point, exponent), or "inf"/"infinity"/"nan"; 0.0 when there is none.
IOUTILS_API double parseDouble(std::wstring_view text);
// Optional leading blanks and sign, then the longest digit prefix; 0 when
// there is none, INT_MAX or INT_MIN when the value does not fit.
IOUTILS_API int parseInt(std::wstring_view text);
// Fixed notation with four decimals, the point always shown (2.5 -> 2.5000).
IOUTILS_API std::wstring formatFixed4(double value);
// The shortest text that reads back to exactly the same value.
IOUTILS_API std::wstring formatShortest(double value);
IOUTILS_API std::wstring formatInt(long long value);
// The same forms appended to `out`, for writers that build text in place.
IOUTILS_API void appendFixed4(std::wstring& out, double value);
IOUTILS_API void appendShortest(std::wstring& out, double value);
IOUTILS_API void appendInt(std::wstring& out, long long value);

// Strict forms: the whole text, blanks around it aside, must be one number.
IOUTILS_API bool readDouble(std::wstring_view text, double& value);
IOUTILS_API bool readInt(std::wstring_view text, int& value);

}  // namespace ioutils
