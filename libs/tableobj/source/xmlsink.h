#pragma once

#include <string>

#include "tableobj/INamed.h"
#include "tableobj/IXmlOut.h"
#include "tableobj/IXmlWriter.h"

namespace tableobj {

// Passes pieces to a writer until one is refused; then the rest are dropped
// and result() stays false.
class XmlSink {
public:
    explicit XmlSink(IXmlWriter& out) : out_(out) {}
    XmlSink& write(std::wstring piece);
    XmlSink& write(const IXmlOut& child);
    bool result() const { return ok_; }

private:
    IXmlWriter& out_;
    bool ok_ = true;
};

// ` name="value"` with the value escaped.
std::wstring attribute(const wchar_t* name, std::wstring value);
// The name and desc attributes, each only when not empty.
std::wstring nameAttributes(const INamed& named);
// Text escaped for element content.
std::wstring escapedText(std::wstring text);

}  // namespace tableobj
