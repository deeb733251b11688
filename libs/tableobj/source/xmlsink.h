#pragma once

#include <string>
#include <string_view>

#include "tableobj/IXmlOut.h"
#include "tableobj/IXmlWriter.h"

namespace tableobj {

// The attributes of a start tag, each written only when not empty.
struct TagAttributes {
    std::wstring_view name = {};
    std::wstring_view desc = {};
    std::wstring_view datatype = {};
};

// Passes pieces to a writer until one is refused; then the rest are dropped
// and result() stays false.
class XmlSink {
public:
    explicit XmlSink(IXmlWriter& out) : out_(out) {}
    // The piece that `build(std::wstring&)` appends.
    template <class Build>
    XmlSink& build(Build&& build) {
        if (ok_) ok_ = buildPiece(out_, build);
        return *this;
    }
    XmlSink& write(const IXmlOut& child);
    // The start tag of `element` as one piece, then what
    // `writeContent(XmlSink&)` writes, then the end tag as one piece.
    template <class WriteContent>
    XmlSink& element(std::wstring_view element, const TagAttributes& attributes,
                     WriteContent&& writeContent) {
        build([&](std::wstring& tag) { appendStartTag(tag, element, attributes); });
        writeContent(*this);
        return build([&](std::wstring& tag) { appendEndTag(tag, element); });
    }
    bool result() const { return ok_; }

private:
    static void appendStartTag(std::wstring& out, std::wstring_view element,
                               const TagAttributes& attributes);

    IXmlWriter& out_;
    bool ok_ = true;
};

}  // namespace tableobj
