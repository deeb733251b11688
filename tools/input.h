#pragma once

// Reading what the command line names: files or standard input, the working
// language and the root directory.

#include <optional>
#include <string>
#include <string_view>

namespace kazcfg {

std::string utf8(std::wstring_view text);
std::wstring wide(std::string_view text);

// What every subcommand accepts.
struct CommonOptions {
    std::string language;  // a language resource file; empty for none
    std::string root;      // the root directory; empty for the default
    bool verbose = false;
};

// A named input or output that cannot be used; the message says why.
struct InputError {
    std::string file;
    std::string message;
};

// The text of the file `name`, or of standard input for "-": UTF-16 when it
// starts with a UTF-16 byte-order mark, else UTF-8. Throws InputError.
std::wstring readInput(const std::string& name);

// Writes UTF-8 text to the file `name`, or to standard output for "" or "-".
// Throws InputError.
void writeOutput(const std::string& name, std::wstring_view text);

// Installs the working language named by the options, if any. Throws
// InputError when the resource cannot be read or is no language resource.
void installLanguage(const CommonOptions& options);

// Sets the root directory for reading `file`: the one the options name, else
// KAZ_ROOT_DIRECTORY when set, else the directory of the file (the current
// directory for standard input).
void setRootFor(const std::string& file, const CommonOptions& options);

}  // namespace kazcfg
