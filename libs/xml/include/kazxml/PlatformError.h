#pragma once

#include <string>
#include <utility>

#include "kazxml/Export.h"

namespace kaz::xml {

// A failure of the XML services, thrown by value: a result code, a message
// and, where known, the source that reported it.
class KAZXML_API PlatformError {
public:
    PlatformError(long code, std::wstring message, std::wstring source = std::wstring())
        : code_(code), message_(std::move(message)), source_(std::move(source)) {}

    long code() const noexcept { return code_; }
    const std::wstring& message() const noexcept { return message_; }
    // Empty when the error carries no source information.
    const std::wstring& source() const noexcept { return source_; }
    bool hasSource() const noexcept { return !source_.empty(); }

private:
    long code_;
    std::wstring message_;
    std::wstring source_;
};

}  // namespace kaz::xml
