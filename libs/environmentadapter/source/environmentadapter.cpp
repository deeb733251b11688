#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <string>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "ioutils/TextCodec.h"

namespace kaz::environmentadapter {
namespace {

std::wstring programDirectory() {
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof(path) - 1);
    if (length <= 0) return L".";
    std::string text(path, static_cast<std::size_t>(length));
    const std::size_t slash = text.rfind('/');
    if (slash != std::string::npos) text.erase(slash == 0 ? 1 : slash);
    return ioutils::wideFromUtf8(text);
}

class EnvironmentAdapter final : public IEnvironmentAdapter {
public:
    std::wstring getRootDirectory() const override {
        std::lock_guard<std::mutex> lock(mutex_);
        if (hostDirectory_) return *hostDirectory_;
        if (const char* fromEnvironment = std::getenv("KAZ_ROOT_DIRECTORY"))
            return ioutils::wideFromUtf8(fromEnvironment);
        return programDirectory();
    }

    void setRootDirectory(const std::wstring& directory) override {
        std::lock_guard<std::mutex> lock(mutex_);
        hostDirectory_ = directory;
    }

    void resetRootDirectory() override {
        std::lock_guard<std::mutex> lock(mutex_);
        hostDirectory_.reset();
    }

private:
    mutable std::mutex mutex_;
    std::optional<std::wstring> hostDirectory_;
};

}  // namespace

IEnvironmentAdapter& IEnvironmentAdapter::getInstance() {
    static EnvironmentAdapter instance;
    return instance;
}

}  // namespace kaz::environmentadapter
