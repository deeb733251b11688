#include "baselines.h"

#include <libxml/parser.h>

#include <cstring>

namespace kazbench {
namespace {

using Utf8 = const xmlChar*;

void noStart(void*, Utf8, Utf8, Utf8, int, Utf8*, int, int, Utf8*) {}
void noEnd(void*, Utf8, Utf8, Utf8) {}
void noCharacters(void*, Utf8, int) {}

// Appends the UTF-8 text [begin, end) to `out` as wide characters.
void appendWide(std::wstring& out, const unsigned char* begin, const unsigned char* end) {
    while (begin < end) {
        char32_t c = *begin++;
        int more = c < 0x80 ? 0 : c < 0xE0 ? 1 : c < 0xF0 ? 2 : 3;
        if (more > 0) c &= 0x3F >> more;
        for (; more > 0 && begin < end; --more) c = (c << 6) | (*begin++ & 0x3F);
        out += static_cast<wchar_t>(c);
    }
}

std::wstring wide(Utf8 text) {
    std::wstring out;
    appendWide(out, text, text + std::strlen(reinterpret_cast<const char*>(text)));
    return out;
}

// Each copy is a string of its own, as a node's field would be; the run of
// text is collected until the next element event.
struct Copies {
    std::size_t characters = 0;
    std::wstring text;

    void keep(const std::wstring& copy) { characters += copy.size(); }
    void flushText() {
        characters += text.size();
        text.clear();
    }
};

void copyStart(void* context, Utf8 localName, Utf8, Utf8, int, Utf8*, int attributeCount, int,
               Utf8* attributes) {
    auto& copies = *static_cast<Copies*>(context);
    copies.flushText();
    copies.keep(wide(localName));
    for (int i = 0; i < attributeCount; ++i) {
        Utf8* attribute = attributes + 5 * i;  // local name, prefix, URI, value, value end
        copies.keep(wide(attribute[0]));
        std::wstring value;
        appendWide(value, attribute[3], attribute[4]);
        copies.keep(value);
    }
}

void copyEnd(void* context, Utf8 localName, Utf8, Utf8) {
    auto& copies = *static_cast<Copies*>(context);
    copies.flushText();
    copies.keep(wide(localName));
}

void copyCharacters(void* context, Utf8 text, int length) {
    appendWide(static_cast<Copies*>(context)->text, text, text + length);
}

// The open elements of a minimal tree, and the text since the last tag.
struct MinimalBuild {
    std::unique_ptr<MinimalNode> root;
    std::vector<MinimalNode*> open;
    std::wstring text;

    // Text between tags is kept only where it is more than layout.
    void flushText() {
        if (!open.empty() && text.find_first_not_of(L" \t\r\n") != std::wstring::npos)
            open.back()->text = text;
        text.clear();
    }
};

void minimalStart(void* context, Utf8, Utf8, Utf8, int, Utf8*, int attributeCount, int,
                  Utf8* attributes) {
    auto& build = *static_cast<MinimalBuild*>(context);
    build.flushText();
    auto node = std::make_unique<MinimalNode>();
    node->values.resize(static_cast<std::size_t>(attributeCount));
    for (int i = 0; i < attributeCount; ++i) {
        Utf8* attribute = attributes + 5 * i;
        appendWide(node->values[static_cast<std::size_t>(i)], attribute[3], attribute[4]);
    }
    MinimalNode* opened = node.get();
    if (build.open.empty())
        build.root = std::move(node);
    else
        build.open.back()->children.push_back(std::move(node));
    build.open.push_back(opened);
}

void minimalEnd(void* context, Utf8, Utf8, Utf8) {
    auto& build = *static_cast<MinimalBuild*>(context);
    build.flushText();
    build.open.pop_back();
}

void minimalCharacters(void* context, Utf8 text, int length) {
    appendWide(static_cast<MinimalBuild*>(context)->text, text, text + length);
}

bool parse(xmlSAXHandler& handler, void* context, const std::string& text) {
    handler.initialized = XML_SAX2_MAGIC;
    return xmlSAXUserParseMemory(&handler, context, text.data(), static_cast<int>(text.size())) ==
           0;
}

}  // namespace

bool parseWithEmptyCallbacks(const std::string& text) {
    xmlSAXHandler handler{};
    handler.startElementNs = noStart;
    handler.endElementNs = noEnd;
    handler.characters = noCharacters;
    return parse(handler, nullptr, text);
}

bool parseWithCopyingCallbacks(const std::string& text) {
    xmlSAXHandler handler{};
    handler.startElementNs = copyStart;
    handler.endElementNs = copyEnd;
    handler.characters = copyCharacters;
    Copies copies;
    const bool parsed = parse(handler, &copies, text);
    return parsed && copies.characters > 0;
}

std::unique_ptr<MinimalNode> buildMinimalTree(const std::string& text) {
    xmlSAXHandler handler{};
    handler.startElementNs = minimalStart;
    handler.endElementNs = minimalEnd;
    handler.characters = minimalCharacters;
    MinimalBuild build;
    if (!parse(handler, &build, text)) return nullptr;
    return std::move(build.root);
}

}  // namespace kazbench
