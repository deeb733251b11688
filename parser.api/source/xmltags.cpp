#include "xmltags.h"

#include "ioutils/Numbers.h"

namespace kaz::kazparser {

StartTag::StartTag(const std::wstring& name) {
    tag_.reserve(name.size() + 32);
    tag_ += L'<';
    tag_ += name;
}

StartTag& StartTag::text(const wchar_t* name, const std::wstring& value) {
    if (!value.empty()) always(name, value);
    return *this;
}

StartTag& StartTag::flag(const wchar_t* name, bool value) {
    if (value) always(name, L"true");
    return *this;
}

StartTag& StartTag::number(const wchar_t* name, double value, bool present) {
    if (present) always(name, ioutils::formatFixed4(value));
    return *this;
}

StartTag& StartTag::always(std::wstring_view name, std::wstring_view value) {
    tag_ += L' ';
    tag_ += name;
    tag_ += L"=\"";
    tag_ += value;
    tag_ += L'"';
    return *this;
}

std::wstring StartTag::str() {
    tag_ += L'>';
    return std::move(tag_);
}

std::wstring endTag(const std::wstring& name) {
    std::wstring tag;
    tag.reserve(name.size() + 3);
    return tag.append(L"</").append(name).append(L">");
}

}  // namespace kaz::kazparser
