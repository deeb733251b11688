#include "tableobj/XmlEscape.h"

namespace tableobj {
namespace {

// Replaces every `from` by `to`, left to right, never re-examining `to`.
void replaceAll(std::wstring& text, wchar_t from, const wchar_t* to) {
    const std::wstring replacement = to;
    for (std::size_t p = text.find(from); p != std::wstring::npos;
         p = text.find(from, p + replacement.size()))
        text.replace(p, 1, replacement);
}

// The ampersand pass keeps the historical rule: an "&" followed by "a" or "A"
// is taken for an entity, and the search skips three characters after each
// "&" found, whatever was done with it.
void escapeAmpersands(std::wstring& text) {
    for (std::size_t p = text.find(L'&'); p != std::wstring::npos; p = text.find(L'&', p + 3)) {
        const bool entity = p + 1 < text.size() && (text[p + 1] == L'a' || text[p + 1] == L'A');
        if (!entity) text.replace(p, 1, L"&amp;");
        if (p + 3 >= text.size()) break;
    }
}

}  // namespace

void escapeText(std::wstring& text) {
    escapeAmpersands(text);
    replaceAll(text, L'<', L"&lt;");
    replaceAll(text, L'>', L"&gt;");
}

void escapeAttribute(std::wstring& text) {
    escapeText(text);
    replaceAll(text, L'"', L"&quot;");
}

}  // namespace tableobj
