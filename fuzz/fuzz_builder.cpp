// Feeds arbitrary bytes, read as UTF-8, to both tree builders. Whatever
// they build must write text that builds the same tree again, and every
// path must free what it made.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "ioutils/TextCodec.h"
#include "kazparser.h"

namespace {

using kaz::kazparser::INodeCfg;
using kaz::kazparser::KAZConfigFactory;

// An "&" written before "a" or "A" stays as it is, so such texts may not
// read again; every other written text must.
bool expectedToReadAgain(const std::wstring& written) {
    return written.find(L"&a") == std::wstring::npos && written.find(L"&A") == std::wstring::npos;
}

struct Written {
    int kind = -1;  // none
    std::wstring text;
};

template <class Build>
Written writtenTree(Build build, const std::wstring& text) {
    try {
        std::unique_ptr<INodeCfg> root(build(&text, nullptr));
        if (root != nullptr) return {root->getNodeType(), root->toXml()};
    } catch (kazexception::IKAZException* e) {
        e->release();
    } catch (const kaz::xml::PlatformError&) {
    }
    return {};
}

// A node whose kind came from its context (a feature, a parameter, ...) may
// read back as another kind on its own; only trees that keep their root's
// kind must read back to the same text.
template <class Build>
void checkRoundTrip(Build build, const std::wstring& text) {
    const Written first = writtenTree(build, text);
    if (first.kind < 0 || !expectedToReadAgain(first.text)) return;
    const Written second = writtenTree(build, first.text);
    if (second.kind == first.kind && second.text != first.text) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    KAZConfigFactory::setMessageHandler([](const std::wstring&, const std::wstring&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const long live = MemObject::liveCount();
    const std::wstring text =
        ioutils::wideFromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
    checkRoundTrip(
        [](const std::wstring* t, INodeCfg* p) { return KAZConfigFactory::createNodeCfg(t, p); },
        text);
    checkRoundTrip([](const std::wstring* t,
                      INodeCfg* p) -> INodeCfg* { return KAZConfigFactory::createXNodeCfg(t, p); },
                   text);
    if (MemObject::liveCount() != live) std::abort();
    return 0;
}
