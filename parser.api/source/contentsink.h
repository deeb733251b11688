#pragma once

#include <string>

#include "tableobj/IElement.h"

namespace kaz::kazparser {

// Where the builders hand what an element holds, for the kinds that keep
// their element's content instead of making child nodes of it. Each kind
// takes the form its content model gives it; the others do nothing.
class ContentSink {
public:
    // A whole run of character data (for a feature, nested markup as text
    // too), in document order.
    virtual void appendText(const std::wstring& text) { (void)text; }
    // The whole content as markup that parses back to it.
    virtual void takeMarkup(const std::wstring& markup) { (void)markup; }
    // The value read from the content; the sink owns it from then on.
    virtual void takeValue(tableobj::IElement* value) { delete value; }
    // The element's end tag was read.
    virtual void endOfContent() {}

protected:
    ~ContentSink() = default;
};

}  // namespace kaz::kazparser
