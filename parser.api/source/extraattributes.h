#pragma once

#include <map>
#include <string>

#include "saxattributes.h"
#include "xmltags.h"

namespace kaz::kazparser {

// Attributes that a kind keeps beside its own ones: (name, value) pairs in
// the order they were added, and each name's position. Errors name
// `className` and the calling method.
class ExtraAttributes {
public:
    explicit ExtraAttributes(const wchar_t* className) : className_(className) {}

    unsigned int count() const { return static_cast<unsigned int>(positions_.size()); }
    bool has(const std::wstring& name) const { return positions_.count(name) != 0; }

    // An index not below count() raises "index <n> is out of range";
    // an unknown name "<name> is not the name of child object".
    const std::wstring& value(unsigned int index, const wchar_t* method) const;
    const std::wstring& value(const std::wstring& name, const wchar_t* method) const;
    void set(unsigned int index, const std::wstring& value, const wchar_t* method);
    // Replaces the value of a known name, or adds the name at the end.
    void set(const std::wstring& name, const std::wstring& value);

    // Adds every attribute, in order, to `tag`.
    void write(StartTag& tag) const;

private:
    void checkIndex(unsigned int index, const wchar_t* method) const;

    const wchar_t* className_;
    AttributeList list_;
    std::map<std::wstring, unsigned int> positions_;
};

}  // namespace kaz::kazparser
