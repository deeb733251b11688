#pragma once

#include <cstddef>
#include <string>

#include "kazexception/KAZExceptionFactory.h"

namespace tableobj {

// The module's exceptions, to be thrown by the caller with the context of the
// throwing site (KAZ_CONTEXT), which is made only when an error occurs.
kazexception::IKAZException* outOfRange(std::size_t index, const std::wstring& context);
kazexception::IKAZException* invalidArgument(const std::wstring& context);
kazexception::IKAZException* invalidData(const std::wstring& message, const std::wstring& context);

}  // namespace tableobj
