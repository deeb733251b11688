#include "testsupport.h"

#include <cstdlib>
#include <new>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "ioutils/IOUtils.h"

namespace kaztest {

void ExamplesRootTest::SetUp() {
    LeakCheckedTest::SetUp();
    kaz::environmentadapter::IEnvironmentAdapter::getInstance().setRootDirectory(
        examplesDirectory().wstring());
}

void ExamplesRootTest::TearDown() {
    kaz::kazparser::KAZConfigFactory::setWorkingLanguageResource(L"<Language/>");
    kaz::environmentadapter::IEnvironmentAdapter::getInstance().resetRootDirectory();
    LeakCheckedTest::TearDown();
}

std::filesystem::path sourceDirectory() {
    const char* root = std::getenv("KAZ_TEST_DATA");
    return root != nullptr ? std::filesystem::path(root) : std::filesystem::current_path();
}

std::wstring readFile(const std::filesystem::path& path) {
    return ioutils::IOUtilsFactory::createIOUtils()->readTextFile(path.wstring());
}

MessageCapture::MessageCapture()
    : messages_(std::make_shared<std::vector<std::pair<std::wstring, std::wstring>>>()) {
    auto sink = messages_;
    previous_ = kaz::kazparser::KAZConfigFactory::setMessageHandler(
        [sink](const std::wstring& text, const std::wstring& caption) {
            sink->emplace_back(caption, text);
        });
}

MessageCapture::~MessageCapture() {
    kaz::kazparser::KAZConfigFactory::setMessageHandler(previous_);
}

void expectNothingLeaksUnderAllocationFailures(const std::function<void()>& action) {
    for (long allowed = 0;; ++allowed) {
        const long live = MemObject::liveCount();
        MemObject::failAfter(allowed);
        bool failed = false;
        try {
            action();
        } catch (const std::bad_alloc&) {
            failed = true;
        } catch (IKAZException* e) {
            e->release();
        }
        MemObject::failAfter(-1);
        ASSERT_EQ(MemObject::liveCount(), live) << "after " << allowed << " allocations";
        if (!failed) break;
    }
}

std::wstring methodOf(const std::wstring& context) {
    const std::wstring marker = L"\n\t[method] ";
    const std::size_t at = context.find(marker);
    return at == std::wstring::npos ? std::wstring() : context.substr(at + marker.size());
}

}  // namespace kaztest
