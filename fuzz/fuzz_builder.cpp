// Feeds texts to the tree builder: through createNodeCfg and through the text
// form of one kind, which the first byte chooses (its value modulo the number
// of kinds, in the order of kKinds); the rest of the input, read as UTF-8, is
// the text. What is read from a text whose values need no escaping must write
// a text that reads again, through the same function and without a message,
// to the same text; and every path must free what it made.
#include <memory>
#include <optional>

#include "fuzzsupport.h"

namespace {

using namespace kazfuzz;

struct Written {
    std::optional<INodeCfg::NodeType> kind;  // none: nothing was read
    std::wstring text;
};

Written written(Create create, const std::wstring& text) {
    Written result;
    attempt([&] {
        std::unique_ptr<INodeCfg> root(create(&text, nullptr));
        if (root == nullptr) return;
        check(root->getParent() == nullptr, "a root reports the parent it was given");
        result = {root->getNodeType(), root->toXml()};
    });
    return result;
}

// Attribute values of the typed kinds and the content of features are
// written as they stand, not escaped (a sample reference's text is written
// as an attribute), so a value holding "<", "&" or a quotation mark may not
// read back. Such values come from references, CDATA sections, apostrophes
// and quotation marks that delimit no attribute value.
bool valuesNeedNoEscaping(const std::wstring& text) {
    if (text.find_first_of(L"&'") != std::wstring::npos ||
        text.find(L"<![CDATA[") != std::wstring::npos)
        return false;
    bool inTag = false, inValue = false;
    for (const wchar_t c : text) {
        if (c == L'"' && !inTag) return false;
        if (c == L'"')
            inValue = !inValue;
        else if (!inValue && (c == L'<' || c == L'>'))
            inTag = c == L'<';
    }
    return true;
}

// A parameter's shift is written with four decimals, but only when above
// 0.0001: one just above is written as "0.0001" (or "-0.0001"), which is
// then not written again. The text without such shifts.
std::wstring withoutSmallestShifts(std::wstring text) {
    for (const std::wstring_view shift : {L" shift=\"0.0001\"", L" shift=\"-0.0001\""})
        for (auto at = text.find(shift); at != std::wstring::npos; at = text.find(shift, at))
            text.erase(at, shift.size());
    return text;
}

// A node whose kind came from its context (a feature, a parameter, ...) may
// read back as another kind on its own; with `sameKindOnly` only trees that
// keep their root's kind must read back to the same text.
void checkRoundTrip(Create create, const std::wstring& text, bool sameKindOnly) {
    const Written first = written(create, text);
    if (!first.kind || !valuesNeedNoEscaping(text)) return;
    const long shown = shownMessages();
    const Written second = written(create, first.text);
    if (sameKindOnly && second.kind != first.kind) return;
    check(second.kind == first.kind && shownMessages() == shown, "a written text reads again");
    // Line breaks and tabs in attribute values, which the typed kinds write
    // as they stand, read as spaces: the generic trees of both texts agree.
    check(second.text == first.text ||
              genericText(second.text) == genericText(withoutSmallestShifts(first.text)),
          "a written text reads again to the same text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return testSelected(data, size, [](std::uint8_t selector, const std::wstring& text) {
        checkRoundTrip([](const std::wstring* t,
                          INodeCfg* p) { return KAZConfigFactory::createNodeCfg(t, p); },
                       text, true);
        checkRoundTrip(kKinds[selector % kKinds.size()].create, text, false);
    });
}
