#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "ioutils/IOUtils.h"
#include "ioutils/TextCodec.h"
#include "kazexception/KAZExceptionFactory.h"

namespace ioutils {
namespace {

// The whole content of file `name`; false when it cannot be read. Through
// C streams, which report a failure instead of hiding it as iostreams do
// (a failed allocation inside `<<` only sets a flag).
bool readWhole(const std::filesystem::path& name, std::string& bytes) {
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(name.c_str(), "rb"));
    if (file == nullptr) return false;
    char block[64 * 1024];
    for (std::size_t got; (got = std::fread(block, 1, sizeof block, file.get())) > 0;)
        bytes.append(block, got);
    return std::ferror(file.get()) == 0;
}

class IOUtilsImpl final : public IIOUtils {
public:
    std::wstring readTextFile(const std::wstring& path) const override {
        const std::filesystem::path name(utf8FromWide(path));
        std::error_code error;
        std::string bytes;
        if (!std::filesystem::is_regular_file(name, error) || !readWhole(name, bytes)) {
            throw kazexception::KAZExceptionFactory::createInvalidDataException(
                L"can not read file '" + path + L"'",
                KAZ_CONTEXT(L"ioutils::IOUtilsImpl::readTextFile"), nullptr);
        }
        return wideFromTextFile(bytes);
    }
};

}  // namespace

std::unique_ptr<IIOUtils> IOUtilsFactory::createIOUtils() {
    return std::make_unique<IOUtilsImpl>();
}

}  // namespace ioutils
