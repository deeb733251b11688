#include <gtest/gtest.h>

#include <cstdlib>

#include "environmentadapter/IEnvironmentAdapter.h"

namespace {

using kaz::environmentadapter::IEnvironmentAdapter;

TEST(EnvironmentAdapter, HostSettingWinsOverEnvironmentWhichWinsOverProgramDirectory) {
    IEnvironmentAdapter& adapter = IEnvironmentAdapter::getInstance();
    ::unsetenv("KAZ_ROOT_DIRECTORY");
    const std::wstring programDirectory = adapter.getRootDirectory();
    EXPECT_FALSE(programDirectory.empty());
    EXPECT_NE(programDirectory.back(), L'/');

    ::setenv("KAZ_ROOT_DIRECTORY", "/srv/k\xC3\xA9z", 1);
    EXPECT_EQ(adapter.getRootDirectory(), L"/srv/k\u00e9z");
    adapter.setRootDirectory(L"/host/root");
    EXPECT_EQ(adapter.getRootDirectory(), L"/host/root");
    adapter.resetRootDirectory();
    EXPECT_EQ(adapter.getRootDirectory(), L"/srv/k\u00e9z");
    ::unsetenv("KAZ_ROOT_DIRECTORY");
    EXPECT_EQ(adapter.getRootDirectory(), programDirectory);
}

}  // namespace
