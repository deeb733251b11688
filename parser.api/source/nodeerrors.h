#pragma once

#include <string>

#include "kazexception/KAZExceptionFactory.h"

// Context of a throwing statement in a method of `className`
// (a wide literal method name, e.g. L"getChild").
#define KAZ_HERE(className, method) KAZ_CONTEXT(std::wstring(className) + L"::" + (method))

namespace kaz::kazparser::errors {

// "index <n> is out of range"
[[noreturn]] void indexOutOfRange(unsigned int index, const std::wstring& context);
// "index <name> is out of range"
[[noreturn]] void nameOutOfRange(const std::wstring& name, const std::wstring& context);
// "<name> is not the name of child object" (an out-of-range error)
[[noreturn]] void notChildName(const std::wstring& name, const std::wstring& context);
// "Invalid argument" (an invalid-data error)
[[noreturn]] void invalidArgument(const std::wstring& context);
[[noreturn]] void invalidData(const std::wstring& message, const std::wstring& context);
[[noreturn]] void parsing(const std::wstring& message, const std::wstring& context,
                          kazexception::IKAZException* inner = nullptr);

// `argument` itself; null raises "Invalid argument" naming `className`::`method`.
template <class T>
T* required(T* argument, const wchar_t* className, const wchar_t* method) {
    if (argument == nullptr) invalidArgument(KAZ_HERE(className, method));
    return argument;
}

}  // namespace kaz::kazparser::errors
