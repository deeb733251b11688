#include "tableobj/XmlEscape.h"

namespace tableobj {
namespace {

constexpr const wchar_t* kTextMarkup = L"&<>";
constexpr const wchar_t* kAttributeMarkup = L"&<>\"";

// Escapes in one pass, appending the runs between replaced characters
// whole. The ampersand rule is the historical one: an "&" followed by "a"
// or "A" is taken for an entity and kept, and the search for the next "&"
// resumes three characters after it, so an "&" two places on is kept too.
// With `protect`, the characters a reader normalises (carriage returns, and
// in attribute values tabs and line breaks) become character references.
void appendEscaped(std::wstring& out, std::wstring_view text, bool inAttribute, bool protect) {
    std::size_t run = 0;         // start of the text not yet appended
    std::size_t keptBefore = 0;  // an "&" before this position is kept
    for (std::size_t p = 0; p < text.size(); ++p) {
        std::wstring_view replacement;
        switch (text[p]) {
            case L'&':
                if (p < keptBefore) break;
                if (p + 1 < text.size() && (text[p + 1] == L'a' || text[p + 1] == L'A'))
                    keptBefore = p + 3;
                else
                    replacement = L"&amp;";
                break;
            case L'<':
                replacement = L"&lt;";
                break;
            case L'>':
                replacement = L"&gt;";
                break;
            case L'"':
                if (inAttribute) replacement = L"&quot;";
                break;
            case L'\r':
                if (protect) replacement = L"&#13;";
                break;
            case L'\n':
                if (protect && inAttribute) replacement = L"&#10;";
                break;
            case L'\t':
                if (protect && inAttribute) replacement = L"&#9;";
                break;
            default:
                break;
        }
        if (replacement.empty()) continue;
        out.append(text.substr(run, p - run)).append(replacement);
        run = p + 1;
    }
    out.append(text.substr(run));
}

void escapeInPlace(std::wstring& text, bool inAttribute) {
    if (text.find_first_of(inAttribute ? kAttributeMarkup : kTextMarkup) == std::wstring::npos)
        return;
    std::wstring escaped;
    escaped.reserve(text.size() + 16);
    appendEscaped(escaped, text, inAttribute, false);
    text.swap(escaped);
}

}  // namespace

void escapeText(std::wstring& text) {
    escapeInPlace(text, false);
}

void escapeAttribute(std::wstring& text) {
    escapeInPlace(text, true);
}

void appendEscapedText(std::wstring& out, std::wstring_view text) {
    appendEscaped(out, text, false, true);
}

void appendEscapedAttribute(std::wstring& out, std::wstring_view text) {
    appendEscaped(out, text, true, true);
}

}  // namespace tableobj
