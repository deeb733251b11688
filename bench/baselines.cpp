#include "baselines.h"

#include <libxml/parser.h>

#include "kazxml/SAX.h"

#include <cstring>
#include <string_view>

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

    // A new node for an element with `attributeCount` attributes, open until end().
    MinimalNode& start(std::size_t attributeCount) {
        flushText();
        auto node = std::make_unique<MinimalNode>();
        node->attributes.resize(attributeCount);
        MinimalNode* opened = node.get();
        if (open.empty())
            root = std::move(node);
        else
            open.back()->children.push_back(std::move(node));
        open.push_back(opened);
        return *opened;
    }

    void end() {
        flushText();
        open.pop_back();
    }
};

void minimalStart(void* context, Utf8 localName, Utf8, Utf8, int, Utf8*, int attributeCount, int,
                  Utf8* attributes) {
    auto& build = *static_cast<MinimalBuild*>(context);
    MinimalNode& node = build.start(static_cast<std::size_t>(attributeCount));
    node.name = wide(localName);
    for (int i = 0; i < attributeCount; ++i) {
        Utf8* attribute = attributes + 5 * i;
        auto& [name, value] = node.attributes[static_cast<std::size_t>(i)];
        name = wide(attribute[0]);
        appendWide(value, attribute[3], attribute[4]);
    }
}

void minimalEnd(void* context, Utf8, Utf8, Utf8) {
    static_cast<MinimalBuild*>(context)->end();
}

void minimalCharacters(void* context, Utf8 text, int length) {
    appendWide(static_cast<MinimalBuild*>(context)->text, text, text + length);
}

// A content handler of the library's reader that builds the minimal tree.
class ReaderHandler final : public kaz::xml::SAXDefaultHandler {
public:
    explicit ReaderHandler(MinimalBuild& build) : build_(build) {}

    long putDocumentLocator(kaz::xml::ISAXLocator* locator) override {
        startTags_ = dynamic_cast<kaz::xml::IStartTagLocator*>(locator);
        return kaz::xml::S_OK;
    }
    long startElement(const wchar_t*, int, const wchar_t*, int, const wchar_t* qName,
                      int qNameLength, kaz::xml::ISAXAttributes* attributes) override {
        int count = 0;
        attributes->getLength(&count);
        MinimalNode& node = build_.start(static_cast<std::size_t>(count));
        node.name.assign(qName, static_cast<std::size_t>(qNameLength));
        for (int i = 0; i < count; ++i) {
            const wchar_t* text = nullptr;
            int length = 0;
            auto& [name, value] = node.attributes[static_cast<std::size_t>(i)];
            attributes->getQName(i, &text, &length);
            name.assign(text, static_cast<std::size_t>(length));
            attributes->getValue(i, &text, &length);
            value.assign(text, static_cast<std::size_t>(length));
        }
        if (startTags_ != nullptr) startTags_->getStartTagPosition(&node.line, &node.column);
        return kaz::xml::S_OK;
    }
    long endElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int) override {
        build_.end();
        return kaz::xml::S_OK;
    }
    long characters(const wchar_t* chars, int length) override {
        build_.text.append(chars, static_cast<std::size_t>(length));
        return kaz::xml::S_OK;
    }

private:
    MinimalBuild& build_;
    kaz::xml::IStartTagLocator* startTags_ = nullptr;
};

bool parseThroughReader(const std::wstring& text, kaz::xml::ISAXContentHandler& handler) {
    kaz::xml::SAXXMLReader reader;
    reader.putContentHandler(&handler);
    return reader.parse(text) == kaz::xml::S_OK;
}

bool parse(xmlSAXHandler& handler, void* context, const std::string& text) {
    handler.initialized = XML_SAX2_MAGIC;
    return xmlSAXUserParseMemory(&handler, context, text.data(), static_cast<int>(text.size())) ==
           0;
}

// Appends `text` with "&", "<", ">" (and in attribute values '"') escaped,
// in runs between the characters escaped.
void appendEscaped(std::wstring& out, std::wstring_view text, bool inAttribute) {
    std::size_t run = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        const wchar_t* escaped = c == L'&'                  ? L"&amp;"
                                 : c == L'<'                ? L"&lt;"
                                 : c == L'>'                ? L"&gt;"
                                 : c == L'"' && inAttribute ? L"&quot;"
                                                            : nullptr;
        if (escaped == nullptr) continue;
        out.append(text.substr(run, i - run)).append(escaped);
        run = i + 1;
    }
    out.append(text.substr(run));
}

}  // namespace

void writeMinimalTree(const MinimalNode& node, std::wstring& out) {
    out.append(1, L'<').append(node.name);
    for (const auto& [name, value] : node.attributes) {
        out.append(1, L' ').append(name).append(L"=\"");
        appendEscaped(out, value, true);
        out += L'"';
    }
    if (node.children.empty() && node.text.empty()) {
        out += L"/>";
        return;
    }
    out += L'>';
    appendEscaped(out, node.text, false);
    for (const auto& child : node.children) writeMinimalTree(*child, out);
    out.append(L"</").append(node.name) += L'>';
}

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

bool parseWithReader(const std::wstring& text) {
    kaz::xml::SAXDefaultHandler handler;
    return parseThroughReader(text, handler);
}

std::unique_ptr<MinimalNode> buildMinimalTreeThroughReader(const std::wstring& text) {
    MinimalBuild build;
    ReaderHandler handler(build);
    if (!parseThroughReader(text, handler)) return nullptr;
    return std::move(build.root);
}

}  // namespace kazbench
