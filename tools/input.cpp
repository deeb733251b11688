#include "input.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "environmentadapter/IEnvironmentAdapter.h"
#include "ioutils/TextCodec.h"
#include "kazparser.h"

namespace kazcfg {

std::string utf8(std::wstring_view text) {
    return ioutils::utf8FromWide(text);
}

std::wstring wide(std::string_view text) {
    return ioutils::wideFromUtf8(text);
}

namespace {

std::string readAll(std::istream& in) {
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

[[noreturn]] void failOn(const std::string& name, const std::string& doing) {
    throw InputError{name, doing + ": " + std::strerror(errno)};
}

}  // namespace

std::wstring readInput(const std::string& name) {
    if (name == "-") return ioutils::wideFromTextFile(readAll(std::cin));
    if (std::filesystem::is_directory(name)) {
        errno = EISDIR;
        failOn(name, "can not read the file");
    }
    std::ifstream file(name, std::ios::binary);
    if (!file) failOn(name, "can not read the file");
    return ioutils::wideFromTextFile(readAll(file));
}

void writeOutput(const std::string& name, std::wstring_view text) {
    const std::string bytes = utf8(text);
    if (name.empty() || name == "-") {
        std::cout << bytes;
        return;
    }
    std::ofstream file(name, std::ios::binary);
    if (!(file << bytes) || !file.flush()) failOn(name, "can not write the file");
}

void installLanguage(const CommonOptions& options) {
    if (options.language.empty()) return;
    if (!kaz::kazparser::KAZConfigFactory::setWorkingLanguageResource(readInput(options.language)))
        throw InputError{options.language, "no language resource (empty or not well-formed)"};
}

void setRootFor(const std::string& file, const CommonOptions& options) {
    std::filesystem::path root = options.root;
    if (root.empty()) {
        if (std::getenv("KAZ_ROOT_DIRECTORY") != nullptr) return;
        root = file == "-" ? std::filesystem::current_path()
                           : std::filesystem::absolute(file).parent_path();
    }
    kaz::environmentadapter::IEnvironmentAdapter::getInstance().setRootDirectory(root.wstring());
}

}  // namespace kazcfg
