// Feeds texts to the generic tree builder, to the typed values of every
// element type and to the working language. The first byte chooses (its
// value modulo 12): 0 the generic tree, 1 to 10 a typed value of kTypes, 11 a
// language resource; the rest of the input, read as UTF-8, is the text.
// Trees and values must write texts that read again to the same text and an
// equal value, the working language is left as it was, and every path must
// free what it made.
#include <memory>

#include "fuzzsupport.h"

namespace {

using namespace kazfuzz;
using tableobj::IElement;

constexpr IElement::ElementType kTypes[] = {
    IElement::Boolean,          IElement::Double,  IElement::Integer, IElement::String,
    IElement::Column,           IElement::Columns, IElement::Table,   IElement::Tables,
    IElement::TablesCollection, IElement::NoValue};

// An "&" written before "a" or "A" stays as it is (the escaping takes it for
// an entity), so such texts may not read again; every other written text must.
bool expectedToReadAgain(const std::wstring& written) {
    return written.find(L"&a") == std::wstring::npos && written.find(L"&A") == std::wstring::npos;
}

// The generic tree of `text` writes a text that reads again to the same text.
void checkGeneric(const std::wstring& text) {
    const std::wstring first = genericText(text);
    if (first.empty() || !expectedToReadAgain(first)) return;
    check(genericText(first) == first, "a generic tree's text reads again to the same text");
}

// A value of `type` read from a text that loads writes a text that reads
// again to the same text and an equal value. (A text that does not load
// gives the empty node, whose text is read as the type's default value.)
void checkValue(IElement::ElementType type, const std::wstring& text) {
    if (!kaz::xml::Document::create()->loadXML(text)) return;
    std::unique_ptr<IUseDataCfg> first, second;
    if (!attempt([&] { first.reset(KAZConfigFactory::createUseDataCfg(type, &text, nullptr)); }))
        return;
    const std::wstring written = first->toXml();
    if (!expectedToReadAgain(written)) return;
    check(
        attempt([&] { second.reset(KAZConfigFactory::createUseDataCfg(type, &written, nullptr)); }),
        "a value's text reads again");
    check(second->toXml() == written, "a value's text reads again to the same text");
    const IElement* value = first->getValue();
    check(value == nullptr ? second->getValue() == nullptr
                           : second->getValue() != nullptr && value->equals(*second->getValue()),
          "a value's text reads again to an equal value");
}

// The IDs and the group whose display texts the working language gives.
const std::wstring kIds[] = {L"a", L"IDS_A", L"String"};
const std::wstring kGroup =
    L"<PresentationGroup name=\"n\" nameStringID=\"a\" desc=\"d\" "
    L"descStringID=\"IDS_A\"/>";

// Only a text that loads is installed; a refused one leaves the working
// language as it was (none: it is cleared after each input).
void checkLanguage(const std::wstring& text) {
    const bool installed = KAZConfigFactory::setWorkingLanguageResource(text);
    check(installed == kaz::xml::Document::create()->loadXML(text),
          "exactly the resources that load are installed");
    for (const std::wstring& id : kIds) {
        std::unique_ptr<ILanguageStringCfg> string(
            KAZConfigFactory::createLanguageStringCfg(nullptr, nullptr));
        string->setStringID(id);
        check(installed || string->getDisplayText() == id, "a refused resource installs nothing");
    }
    std::unique_ptr<IPresentationGroupCfg> group(
        KAZConfigFactory::createPresentationGroupCfg(&kGroup, nullptr));
    check(installed || (group->getDisplayName() == L"n" && group->getDisplayDesc() == L"d"),
          "a refused resource installs nothing");
    KAZConfigFactory::setWorkingLanguageResource(L"<Language/>");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return testSelected(data, size, [](std::uint8_t selector, const std::wstring& text) {
        const std::size_t mode = selector % (std::size(kTypes) + 2);
        if (mode == 0)
            checkGeneric(text);
        else if (mode <= std::size(kTypes))
            checkValue(kTypes[mode - 1], text);
        else
            checkLanguage(text);
    });
}
