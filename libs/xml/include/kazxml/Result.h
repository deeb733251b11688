#pragma once

namespace kaz::xml {

// Result codes in the style of the platform's component model: 0 is success,
// failures are negative when read as a signed 32-bit number.
constexpr long S_OK = 0;
constexpr long S_FALSE = 1;
constexpr long E_FAIL = static_cast<int>(0x80004005u);
constexpr long E_POINTER = static_cast<int>(0x80004003u);
constexpr long E_INVALIDARG = static_cast<int>(0x80070057u);
constexpr long E_OUTOFMEMORY = static_cast<int>(0x8007000Eu);
constexpr long E_UNEXPECTED = static_cast<int>(0x8000FFFFu);
// A parse error: this base plus the XML engine's own error number.
constexpr long XML_E_PARSE_BASE = static_cast<int>(0xC00CE000u);
// The reader's own refusals (document type declaration, nesting depth,
// attributes of one element, namespace declarations in scope).
constexpr long XML_E_DTD_PROHIBITED = static_cast<int>(0xC00CEF01u);
constexpr long XML_E_TOO_DEEP = static_cast<int>(0xC00CEF02u);
constexpr long XML_E_TOO_MANY_ATTRIBUTES = static_cast<int>(0xC00CEF03u);
constexpr long XML_E_TOO_MANY_NAMESPACES = static_cast<int>(0xC00CEF04u);

constexpr bool succeeded(long result) {
    return result >= 0;
}
constexpr bool failed(long result) {
    return result < 0;
}

}  // namespace kaz::xml
