#pragma once

#include <string>

#include "kazexception/IKAZException.h"

namespace kazexception {

// Makes the library's exceptions. Each takes ownership of `inner` (may be null).
class KAZEXCEPTION_API KAZExceptionFactory {
public:
    static IKAZException* createOutOfRangeException(const std::wstring& message,
                                                    const std::wstring& context,
                                                    IKAZException* inner);
    static IKAZException* createInvalidDataException(const std::wstring& message,
                                                     const std::wstring& context,
                                                     IKAZException* inner);
    static IKAZException* createParsingException(const std::wstring& message,
                                                 const std::wstring& context, IKAZException* inner);

    KAZExceptionFactory() = delete;
};

// The context text of a throwing site: file and line as the compiler sees
// them, and the qualified method name.
KAZEXCEPTION_API std::wstring makeContext(const char* file, int line, const std::wstring& method);

// Frees an exception when it leaves scope, unless it is handed on with take().
class ExceptionGuard {
public:
    explicit ExceptionGuard(IKAZException* e) noexcept : e_(e) {}
    ~ExceptionGuard() {
        if (e_ != nullptr) e_->release();
    }
    ExceptionGuard(const ExceptionGuard&) = delete;
    ExceptionGuard& operator=(const ExceptionGuard&) = delete;
    IKAZException* get() const noexcept { return e_; }
    IKAZException* operator->() const noexcept { return e_; }
    IKAZException* take() noexcept {
        IKAZException* e = e_;
        e_ = nullptr;
        return e;
    }

private:
    IKAZException* e_;
};

}  // namespace kazexception

// Context of the statement where it is used, for the named method.
#define KAZ_CONTEXT(method) ::kazexception::makeContext(__FILE__, __LINE__, (method))
