// Feeds arbitrary bytes, read as UTF-8, to the SAX reader and the document
// loader. Both apply the same rules, so they must agree on whether a text is
// well-formed, and a loaded document's markup must load again.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "ioutils/TextCodec.h"
#include "kazxml/Document.h"
#include "kazxml/SAX.h"

namespace {

using namespace kaz::xml;

// Accepts every event and reads every attribute, as a real handler would.
class Handler final : public SAXDefaultHandler, public ISAXErrorHandler {
public:
    long putDocumentLocator(ISAXLocator* locator) override {
        locator_ = locator;
        return S_OK;
    }
    long startElement(const wchar_t*, int, const wchar_t*, int, const wchar_t*, int,
                      ISAXAttributes* attributes) override {
        int count = 0;
        attributes->getLength(&count);
        for (int i = 0; i < count; ++i) {
            const wchar_t* qName;
            const wchar_t* value;
            int qNameLength, valueLength, index;
            attributes->getQName(i, &qName, &qNameLength);
            attributes->getValue(i, &value, &valueLength);
            attributes->getIndexFromQName(qName, qNameLength, &index);
        }
        int line, column;
        locator_->getLineNumber(&line);
        locator_->getColumnNumber(&column);
        return S_OK;
    }
    long error(ISAXLocator*, const wchar_t*, long) override { return S_OK; }
    long fatalError(ISAXLocator*, const wchar_t*, long) override { return S_OK; }
    long ignorableWarning(ISAXLocator*, const wchar_t*, long) override { return S_OK; }

private:
    ISAXLocator* locator_ = nullptr;
};

void check(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "invariant broken: %s\n", what);
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text =
        ioutils::wideFromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
    Handler handler;
    SAXXMLReader reader;
    reader.putContentHandler(&handler);
    reader.putErrorHandler(&handler);
    const long result = reader.parse(text);

    IXMLDOMDocument2Ptr document = Document::create();
    const bool loaded = document->loadXML(text);
    check(loaded == (result == S_OK), "the reader and the loader agree");
    if (!loaded) return 0;
    const std::wstring markup = document->xml();
    (void)document->documentElement()->text();
    check(Document::create()->loadXML(markup), "a document's markup loads again");
    return 0;
}
