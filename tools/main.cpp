// kazcfg: checks, shows, formats, resolves and compares configuration files
// of the presentation engine.

#include <CLI/CLI.hpp>
#include <iostream>

#include "commands.h"

namespace {

using namespace kazcfg;

void addCommonOptions(CLI::App& command, CommonOptions& common) {
    command.add_option("--lang", common.language, "Install this working language resource first")
        ->type_name("RESOURCE");
    command
        .add_option("--root", common.root,
                    "Root directory for [Kestrelon.RootDirectory] and relative file references "
                    "(default: KAZ_ROOT_DIRECTORY, else the directory of the file)")
        ->type_name("DIR");
    command.add_flag("--verbose", common.verbose,
                     "Add the reader's codes and the library's exception chain to errors");
}

void addWriteOptions(CLI::App& command, WriteOptions& options) {
    command.add_option("FILE", options.file, "Configuration file, or - for standard input")
        ->required();
    command.add_option("-o,--output", options.output, "Write here instead of standard output")
        ->type_name("OUT");
    command.add_flag("--pretty", options.pretty,
                     "Indent one element a line (reads back to the same one-line text)");
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{
        "Checks, shows, formats, resolves and compares configuration files of the "
        "presentation engine. FILE may be - for standard input; files are UTF-8, or "
        "UTF-16 with a byte-order mark.",
        "kazcfg"};
    app.require_subcommand(1);
    CommonOptions common;

    CheckOptions check;
    CLI::App* checkCommand = app.add_subcommand(
        "check",
        "Load each file as the host does; print OK or each problem as FILE:LINE:COLUMN: "
        "error|warning: text. Warnings say what loading and saving would drop or change. "
        "Exit 0 without errors, 1 with errors, 2 for bad usage.");
    checkCommand->add_option("FILE", check.files, "Configuration files")->required();
    checkCommand->add_flag("--strict", check.strict, "Count warnings as errors");
    checkCommand->add_flag("--json", check.json,
                           "Print the problems as a JSON array (file, line, column, severity, "
                           "message, element, attribute)");

    std::string treeFile;
    CLI::App* treeCommand =
        app.add_subcommand("tree",
                           "Print the node tree: one node a line with its kind, name, identifying "
                           "attributes, line:column and display name");
    treeCommand->add_option("FILE", treeFile, "Configuration file, or - for standard input")
        ->required();

    WriteOptions format;
    CLI::App* formatCommand =
        app.add_subcommand("format", "Write the loaded tree back as the library writes it");
    addWriteOptions(*formatCommand, format);

    WriteOptions resolve;
    CLI::App* resolveCommand = app.add_subcommand(
        "resolve",
        "Replace every file reference of the element lists by the element it names, "
        "and write the result");
    addWriteOptions(*resolveCommand, resolve);

    std::string diffA, diffB;
    CLI::App* diffCommand = app.add_subcommand(
        "diff",
        "Compare two configurations node by node (matched by kind and name); exit 0 "
        "when equal, 1 when they differ, 2 when they cannot be compared");
    diffCommand->add_option("A", diffA, "First configuration file")->required();
    diffCommand->add_option("B", diffB, "Second configuration file")->required();

    for (CLI::App* command :
         {checkCommand, treeCommand, formatCommand, resolveCommand, diffCommand})
        addCommonOptions(*command, common);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    try {
        installLanguage(common);
    } catch (const InputError& error) {
        std::cerr << error.file << ": error: " << error.message << '\n';
        return 1;
    }
    if (checkCommand->parsed()) return runCheck(check, common);
    if (treeCommand->parsed()) return runTree(treeFile, common);
    if (formatCommand->parsed()) return runFormat(format, common);
    if (resolveCommand->parsed()) return runResolve(resolve, common);
    return runDiff(diffA, diffB, common);
}
