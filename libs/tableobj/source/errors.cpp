#include "errors.h"

#include "ioutils/Numbers.h"

namespace tableobj {

using kazexception::KAZExceptionFactory;

kazexception::IKAZException* outOfRange(std::size_t index, const std::wstring& context) {
    const std::wstring message =
        L"index " + ioutils::formatInt(static_cast<long long>(index)) + L" is out of range";
    return KAZExceptionFactory::createOutOfRangeException(message, context, nullptr);
}

kazexception::IKAZException* invalidArgument(const std::wstring& context) {
    return KAZExceptionFactory::createInvalidDataException(L"Invalid argument", context, nullptr);
}

kazexception::IKAZException* invalidData(const std::wstring& message, const std::wstring& context) {
    return KAZExceptionFactory::createInvalidDataException(message, context, nullptr);
}

}  // namespace tableobj
