#pragma once

#include <string>

#if defined(_WIN32)
#define ENVIRONMENTADAPTER_API __declspec(dllexport)
#else
#define ENVIRONMENTADAPTER_API __attribute__((visibility("default")))
#endif

namespace kaz::environmentadapter {

// What the library needs to know of the environment it runs in.
class ENVIRONMENTADAPTER_API IEnvironmentAdapter {
public:
    // The process-wide adapter.
    static IEnvironmentAdapter& getInstance();

    // The root directory that replaces "[Kestrelon.RootDirectory]" in
    // configurations: the one a host set, else the environment variable
    // KAZ_ROOT_DIRECTORY when set, else the directory of the running program.
    virtual std::wstring getRootDirectory() const = 0;
    // Sets the root directory for the whole process.
    virtual void setRootDirectory(const std::wstring& directory) = 0;
    // Forgets a directory set by the host, returning to the default rule.
    virtual void resetRootDirectory() = 0;

protected:
    virtual ~IEnvironmentAdapter() = default;
};

}  // namespace kaz::environmentadapter
