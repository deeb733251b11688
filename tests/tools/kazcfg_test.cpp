// Runs the built kazcfg as a user does and checks what it prints and the
// status it exits with.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "ioutils/TextCodec.h"
#include "kazparser.h"

namespace {

namespace fs = std::filesystem;

fs::path sourceDirectory() {
    return std::getenv("KAZ_TEST_DATA");
}

std::string readBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

struct Outcome {
    int status;  // the exit status, or 128 + the signal that ended it
    std::string out;
    std::string err;
};

fs::path scratch(const std::string& name) {
    return fs::temp_directory_path() / ("kazcfg-" + std::to_string(getpid()) + "-" + name);
}

// Runs kazcfg with `arguments` (shell words) in this test's source folder.
Outcome kazcfg(const std::string& arguments) {
    const fs::path out = scratch("out"), err = scratch("err");
    const std::string command = "cd '" + (sourceDirectory() / "tests/tools").string() + "' && '" +
                                KAZCFG_PROGRAM + "' " + arguments + " >'" + out.string() + "' 2>'" +
                                err.string() + "'";
    const int raw = std::system(command.c_str());
    Outcome run{WIFSIGNALED(raw) ? 128 + WTERMSIG(raw) : WEXITSTATUS(raw), readBytes(out),
                readBytes(err)};
    fs::remove(out);
    fs::remove(err);
    return run;
}

// The one-line text the library writes for a configuration file.
std::string writtenByLibrary(const fs::path& file) {
    const std::wstring text = ioutils::wideFromUtf8(readBytes(file));
    std::unique_ptr<kaz::kazparser::INodeCfg> root(
        kaz::kazparser::KAZConfigFactory::createNodeCfg(&text, nullptr));
    return ioutils::utf8FromWide(root->toXml());
}

std::vector<fs::path> examples() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(sourceDirectory() / "examples"))
        if (entry.path().extension() == ".xml") files.push_back(entry.path());
    return files;
}

TEST(KazcfgCheck, ReportsEveryLossOfAFileAtItsPlace) {
    const Outcome run = kazcfg("check --root /srv/kaz losses.xml");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, readBytes(sourceDirectory() / "tests/tools/losses.expected"));

    const Outcome strict = kazcfg("check --strict --root /srv/kaz losses.xml");
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.out.find(": warning: "), std::string::npos);

    const Outcome json = kazcfg("check --json --root /srv/kaz losses.xml");
    const nlohmann::json problems = nlohmann::json::parse(json.out);
    EXPECT_EQ(problems.size(),
              static_cast<std::size_t>(std::count(run.out.begin(), run.out.end(), '\n')));
    EXPECT_EQ(problems[2], nlohmann::json::parse(R"({"file": "losses.xml", "line": 3, "column": 1,
        "severity": "warning", "element": "PresentationGroup", "attribute": "owner",
        "message": "attribute \"owner\" of <PresentationGroup> will be dropped: \"gis\""})"));
}

// A file that writes back exactly as it reads loses nothing; any other does.
TEST(KazcfgCheck, ReportsLossesOfAnExampleExactlyWhenItDoesNotWriteBackAsRead) {
    for (const fs::path& file : examples()) {
        std::string original = readBytes(file);
        while (!original.empty() && original.back() == '\n') original.pop_back();
        const Outcome run = kazcfg("check '" + file.string() + "'");
        EXPECT_EQ(run.status, 0) << file;
        if (writtenByLibrary(file) == original)
            EXPECT_EQ(run.out, file.string() + ": OK\n");
        else
            EXPECT_NE(run.out.find(file.string() + ":1:"), std::string::npos) << run.out;
    }
}

TEST(KazcfgFormat, WritesTheLibrarysTextOrAnIndentedFormThatReadsBackToIt) {
    const fs::path pretty = scratch("pretty.xml");
    for (const fs::path& file : examples()) {
        EXPECT_EQ(kazcfg("format '" + file.string() + "'").out, writtenByLibrary(file) + "\n");
        const Outcome run =
            kazcfg("format --pretty -o '" + pretty.string() + "' '" + file.string() + "'");
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(writtenByLibrary(pretty), writtenByLibrary(file)) << file;
    }
    fs::remove(pretty);
}

TEST(KazcfgTree, ShowsKindNamePlaceAndDisplayNameOfEachNode) {
    const Outcome run =
        kazcfg("tree --lang ../../examples/language/en.xml - < ../../examples/water-network.xml");
    EXPECT_EQ(run.status, 0);
    for (const char* line :
         {"PresentationGroup name=\"Water network\" @1:1\n  Features @1:267\n"
          "    Feature Discipline @1:277\n",
          "\n    UseFixedPresentationElement elemID=\"hydrants\" @1:557 display=\"Fire hydrants\"\n"
          "      PresentationElement name=\"Hydrant symbols\" @1:664\n",
          "\n            DataCollector PointCollector engineID=\"PointCollector\" @1:794\n",
          "\n    UseRefPresentationElement elemID=\"valves\" refFileName=\"elements/valves.xml\" "
          "@1:1737\n"})
        EXPECT_NE(run.out.find(line), std::string::npos) << line;
}

TEST(KazcfgResolve, ReplacesEachFileReferenceByTheElementItNames) {
    const Outcome run = kazcfg("resolve ../../examples/water-network.xml");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out.find("UseRefPresentationElement"), std::string::npos);
    EXPECT_NE(run.out.find("<PresentationElement name=\"Pipe labels\""), std::string::npos);
    EXPECT_NE(run.out.find("<PresentationElement name=\"Valve symbols\""), std::string::npos);
}

TEST(KazcfgDiff, ReportsChangedNodesAtTheirPlacesInBothFiles) {
    const std::string a = "../../examples/label-presentation.xml";
    const Outcome run = kazcfg("diff " + a + " label-changed.xml");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out,
              a + ":1:263: label-changed.xml:2:3: Feature Halo removed\n" + a +
                  ":1:688: label-changed.xml:16:9: attribute \"desc\" of ExtParam "
                  "name=\"Priority\" removed: \"Placement priority\"\n" +
                  a +
                  ":1:790: label-changed.xml:20:7: attribute \"schemaVersion\" of "
                  "PresentationElement name=\"Road name label\" changed: \"2.1\" -> \"2.2\"\n" +
                  a + ":1:937: label-changed.xml:23:13: Feature Shadow added\n" + a +
                  ":1:1566: label-changed.xml:49:11: DataModifier SortModifier "
                  "engineID=\"SortByLength\" removed\n" +
                  a +
                  ":1:1548: label-changed.xml:50:13: DataModifier SortModifier "
                  "engineID=\"SortByName\" added\n" +
                  a +
                  ":1:2061: label-changed.xml:71:21: text of UseData UseInteger changed: \"7\" -> "
                  "\"8\"\n");
    EXPECT_EQ(kazcfg("diff " + a + " " + a).status, 0);
}

// Bad input and bad usage: a message naming the file and place, the status
// the command promises, never a crash.
TEST(KazcfgErrors, NameTheFileAndPlaceAndExitWithTheirStatus) {
    const struct {
        const char* arguments;
        int status;
        const char* message;
    } cases[] = {
        {"check missing.xml", 1,
         "missing.xml: error: can not read the file: No such file or directory\n"},
        {"check malformed.xml", 1,
         "malformed.xml:4:13: error: Opening and ending tag mismatch: Features line 2 and "
         "Feature\n"},
        {"check refused.xml", 1,
         "refused.xml:2:3: error: Can not create <Table>\n"
         "refused.xml:4:5: error: error at <UseTable>: Invalid argument\n"
         "refused.xml:6:11: error: Can not create <Table>\n"},
        {"check empty.xml", 1, "empty.xml:1:1: error: no element: the text is empty\n"},
        {"check utf16.xml", 0, "utf16.xml:1:29: warning: \"<!--\u00e7-->\" will be dropped\n"},
        {"check binary.bin", 1, "binary.bin:1:1: error: "},
        {"check ../../examples/language/en.xml", 0,
         "en.xml:1:1: warning: <Language> is no kind of configuration"},
        {"tree malformed.xml", 1, "malformed.xml:4:13: error: "},
        {"format empty.xml", 1, "empty.xml:1:1: error: "},
        {"resolve --root /nowhere ../../examples/water-network.xml", 1,
         "water-network.xml:1:1382: error: can not read file '/nowhere/elements/pipes.xml'\n"},
        {"diff malformed.xml refused.xml", 2, "refused.xml:2:3: error: Can not create <Table>\n"},
        {"--lang missing.xml tree losses.xml", 2, "--lang"},
        {"tree --lang malformed.xml losses.xml", 1, "malformed.xml: error: no language resource"},
        {"check", 2, "FILE is required"},
        {"frobnicate", 2, "A subcommand is required"},
        {"--help", 0, "Subcommands:"},
        {"diff --help", 0, "--root DIR"},
    };
    for (const auto& c : cases) {
        const Outcome run = kazcfg(c.arguments);
        EXPECT_EQ(run.status, c.status) << c.arguments << "\n" << run.out << run.err;
        EXPECT_NE((run.out + run.err).find(c.message), std::string::npos) << c.arguments << "\n"
                                                                          << run.out << run.err;
    }
}

}  // namespace
