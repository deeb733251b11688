#pragma once

// The subcommands. Each answers the exit status: 0 when all went well, 1
// when a file had errors (or, for diff, the files differ), 2 when diff could
// not compare.

#include <string>
#include <vector>

#include "input.h"

namespace kazcfg {

struct CheckOptions {
    std::vector<std::string> files;
    bool strict = false;  // warnings count as errors
    bool json = false;
};

struct WriteOptions {
    std::string file;
    std::string output;  // empty or "-" for standard output
    bool pretty = false;
};

int runCheck(const CheckOptions& options, const CommonOptions& common);
int runTree(const std::string& file, const CommonOptions& common);
int runFormat(const WriteOptions& options, const CommonOptions& common);
int runResolve(const WriteOptions& options, const CommonOptions& common);
int runDiff(const std::string& fileA, const std::string& fileB, const CommonOptions& common);

}  // namespace kazcfg
