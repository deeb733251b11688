#include "kazparsererrorhandlerimpl.h"

#include <sstream>

#include "saxattributes.h"

namespace kaz::kazparser {
long KAZParserErrorHandlerImpl::error(kaz::xml::ISAXLocator* locator, const wchar_t* message,
                                      long code) {
    return report(locator, message, code);
}

long KAZParserErrorHandlerImpl::fatalError(kaz::xml::ISAXLocator* locator, const wchar_t* message,
                                           long code) {
    return report(locator, message, code);
}

long KAZParserErrorHandlerImpl::ignorableWarning(kaz::xml::ISAXLocator*, const wchar_t*, long) {
    return kaz::xml::S_OK;
}

long KAZParserErrorHandlerImpl::report(kaz::xml::ISAXLocator* locator, const wchar_t* message,
                                       long code) {
    int line = 0;
    int column = 0;
    if (locator != nullptr) {
        checkReaderCall(locator->getLineNumber(&line), L"ISAXLocator", L"getLineNumber");
        checkReaderCall(locator->getColumnNumber(&column), L"ISAXLocator", L"getColumnNumber");
    }
    std::wostringstream text;
    text << L"\nError : " << static_cast<int>(code) << L"\nLine : " << line << L"\nCharacter : "
         << column << L"\n"
         << (message != nullptr ? message : L"") << L"\n";
    errorText_ += text.str();
    errorFlag_ = 1;
    return kaz::xml::S_OK;
}

}  // namespace kaz::kazparser
