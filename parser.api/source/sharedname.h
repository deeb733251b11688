#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace kaz::kazparser {

// An element name that nodes share: a text repeats the same few names, so
// the nodes built from it, and their copies, hold one string per name.
// Setting a name makes a string of its own.
class SharedName {
public:
    SharedName() = default;
    explicit SharedName(std::wstring_view name) { *this = name; }

    SharedName& operator=(std::wstring_view name) {
        text_ = name.empty() ? nullptr : std::make_shared<const std::wstring>(name);
        return *this;
    }

    const std::wstring& str() const { return text_ ? *text_ : none(); }
    operator const std::wstring&() const { return str(); }
    bool empty() const { return text_ == nullptr; }
    void clear() { text_.reset(); }

private:
    static const std::wstring& none() {
        static const std::wstring empty;
        return empty;
    }

    std::shared_ptr<const std::wstring> text_;
};

}  // namespace kaz::kazparser
