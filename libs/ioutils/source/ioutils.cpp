#include <filesystem>
#include <fstream>
#include <sstream>

#include "ioutils/IOUtils.h"
#include "ioutils/TextCodec.h"
#include "kazexception/KAZExceptionFactory.h"

namespace ioutils {
namespace {

class IOUtilsImpl final : public IIOUtils {
public:
    std::wstring readTextFile(const std::wstring& path) const override {
        const std::filesystem::path name(utf8FromWide(path));
        std::error_code error;
        std::ifstream file;
        if (std::filesystem::is_regular_file(name, error)) file.open(name, std::ios::binary);
        std::ostringstream bytes;
        if (file.is_open()) bytes << file.rdbuf();
        if (!file.is_open() || file.bad()) {
            throw kazexception::KAZExceptionFactory::createInvalidDataException(
                L"can not read file '" + path + L"'",
                KAZ_CONTEXT(L"ioutils::IOUtilsImpl::readTextFile"), nullptr);
        }
        return wideFromTextFile(bytes.str());
    }
};

}  // namespace

std::unique_ptr<IIOUtils> IOUtilsFactory::createIOUtils() {
    return std::make_unique<IOUtilsImpl>();
}

}  // namespace ioutils
