#pragma once

#include <string>

#include "kazxml/SAX.h"

namespace kaz::kazparser {

// Collects the reader's error reports into one text and a flag.
class KAZParserErrorHandlerImpl final : public kaz::xml::ISAXErrorHandler {
public:
    long error(kaz::xml::ISAXLocator* locator, const wchar_t* message, long code) override;
    long fatalError(kaz::xml::ISAXLocator* locator, const wchar_t* message, long code) override;
    long ignorableWarning(kaz::xml::ISAXLocator* locator, const wchar_t* message,
                          long code) override;

    bool hasError() const { return errorFlag_ != 0; }
    const std::wstring& errorText() const { return errorText_; }

private:
    long report(kaz::xml::ISAXLocator* locator, const wchar_t* message, long code);

    int errorFlag_ = 0;
    std::wstring errorText_;
};

}  // namespace kaz::kazparser
