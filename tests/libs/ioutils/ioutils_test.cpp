#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "ioutils/IOUtils.h"
#include "kazexception/IKAZException.h"

namespace {

namespace fs = std::filesystem;

std::wstring readBytes(const std::string& bytes) {
    const fs::path path = fs::temp_directory_path() / "kaz_ioutils_test.txt";
    std::ofstream(path, std::ios::binary) << bytes;
    const std::wstring text =
        ioutils::IOUtilsFactory::createIOUtils()->readTextFile(path.wstring());
    fs::remove(path);
    return text;
}

TEST(IOUtils, ReadsUtf8AndUtf16ByTheirByteOrderMarks) {
    EXPECT_EQ(readBytes("<a>\xC3\xA9</a>"), L"<a>\u00e9</a>");
    EXPECT_EQ(readBytes("\xEF\xBB\xBF<a/>"), L"<a/>");
    EXPECT_EQ(readBytes(std::string("\xFF\xFE<\0a\0", 6)), L"<a");
    EXPECT_EQ(readBytes(std::string("\xFE\xFF\0<\0a", 6)), L"<a");
    EXPECT_EQ(readBytes(""), L"");
}

TEST(IOUtils, AMissingFileRaisesAnErrorNamingIt) {
    for (const std::wstring& path :
         {std::wstring(L"/no/such/file.xml"), fs::temp_directory_path().wstring()}) {
        try {
            ioutils::IOUtilsFactory::createIOUtils()->readTextFile(path);
            ADD_FAILURE() << "no error";
        } catch (kazexception::IKAZException* e) {
            EXPECT_EQ(e->getKind(), kazexception::IKAZException::InvalidData);
            EXPECT_NE(e->getMessage().find(path), std::wstring::npos);
            e->release();
        }
    }
}

}  // namespace
