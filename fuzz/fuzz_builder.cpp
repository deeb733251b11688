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

template <class Build>
std::wstring writtenTree(Build build, const std::wstring& text) {
    try {
        std::unique_ptr<INodeCfg> root(build(&text, nullptr));
        return root != nullptr ? root->toXml() : std::wstring();
    } catch (kazexception::IKAZException* e) {
        e->release();
    } catch (const kaz::xml::PlatformError&) {
    }
    return std::wstring();
}

template <class Build>
void checkRoundTrip(Build build, const std::wstring& text) {
    const std::wstring written = writtenTree(build, text);
    if (written.empty() || !expectedToReadAgain(written)) return;
    if (writtenTree(build, written) != written) std::abort();
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
