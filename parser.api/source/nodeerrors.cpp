#include "nodeerrors.h"

#include <sstream>

namespace kaz::kazparser::errors {

using kazexception::KAZExceptionFactory;

void indexOutOfRange(unsigned int index, const std::wstring& context) {
    std::wostringstream message;
    message << L"index " << index << L" is out of range";
    throw KAZExceptionFactory::createOutOfRangeException(message.str(), context, nullptr);
}

void nameOutOfRange(const std::wstring& name, const std::wstring& context) {
    throw KAZExceptionFactory::createOutOfRangeException(L"index " + name + L" is out of range",
                                                         context, nullptr);
}

void notChildName(const std::wstring& name, const std::wstring& context) {
    throw KAZExceptionFactory::createOutOfRangeException(name + L" is not the name of child object",
                                                         context, nullptr);
}

void invalidArgument(const std::wstring& context) {
    invalidData(L"Invalid argument", context);
}

void invalidData(const std::wstring& message, const std::wstring& context) {
    throw KAZExceptionFactory::createInvalidDataException(message, context, nullptr);
}

void parsing(const std::wstring& message, const std::wstring& context,
             kazexception::IKAZException* inner) {
    throw KAZExceptionFactory::createParsingException(message, context, inner);
}

}  // namespace kaz::kazparser::errors
