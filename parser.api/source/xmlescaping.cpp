#include "kazparser/XmlEscaping.h"

#include "tableobj/XmlEscape.h"

namespace kaz::kazparser {

void escapeText(std::wstring& text) {
    tableobj::escapeText(text);
}
void escapeAttribute(std::wstring& text) {
    tableobj::escapeAttribute(text);
}

}  // namespace kaz::kazparser
