#pragma once

#include <string>
#include <string_view>

namespace kaz::kazparser {

// Builds a start tag: "<" name, then each present attribute as
// ` name="value"`, then ">". Values are written as given.
class StartTag {
public:
    explicit StartTag(const std::wstring& name);

    // A text attribute, written when not empty.
    StartTag& text(const wchar_t* name, const std::wstring& value);
    // A flag, written as "true" when set and never when clear.
    StartTag& flag(const wchar_t* name, bool value);
    // A number in fixed notation with four decimals, written when `present`.
    StartTag& number(const wchar_t* name, double value, bool present);
    // An attribute written whatever its value.
    StartTag& always(std::wstring_view name, std::wstring_view value);

    // The finished tag; the builder is left empty.
    std::wstring str();

private:
    std::wstring tag_;
};

// "</" name ">"
std::wstring endTag(const std::wstring& name);

}  // namespace kaz::kazparser
