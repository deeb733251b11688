// Runs the benchmarks and ends with one table: each figure of the
// comparison beside its ratio to the baseline measured in the same run.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

struct Figure {
    double seconds;  // per iteration
    double bytesPerSecond;
    std::map<std::string, double> counters;
};

class SummaryReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            // With repetitions, the median stands for the benchmark.
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median") continue;
            Figure figure{
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit),
                0.0,
                {}};
            for (const auto& [name, counter] : run.counters) {
                if (name == "bytes_per_second")
                    figure.bytesPerSecond = counter.value;
                else
                    figure.counters[name] = counter.value;
            }
            figures_[run.run_name.str()] = figure;
        }
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\n%-40s %14s %10s  %s\n", "figure", "value", "ratio", "goal");
        const auto sax = find("BM_Sax2Empty");
        const auto copying = find("BM_Sax2Copying");
        const auto build = find("BM_BuildLarge");
        rate("SAX2, empty callbacks", "BM_Sax2Empty", sax, "baseline");
        rate("SAX2, copying callbacks", "BM_Sax2Copying", sax, "");
        rate("pugixml load", "BM_PugixmlLoad", sax, "");
        rate("pugixml save", "BM_PugixmlSave", std::nullopt, "");
        rate("typed tree, large text", "BM_BuildLarge", sax, ">= 0.40 of SAX2");
        rate("generic tree, large text", "BM_BuildGenericLarge", sax, "");
        rate("minimal tree of heap nodes", "BM_MinimalTreeBuild", sax, "");
        rate("SAX reader, empty handler", "BM_ReaderEmpty", sax, "");
        rate("minimal tree through the SAX reader", "BM_MinimalTreeThroughReader", sax, "");
        rate("toXml of the large tree", "BM_ToXmlLarge", std::nullopt, ">= 300 MB/s");
        rate("a fresh text of the same length", "BM_FreshTextOfToXmlLength", std::nullopt, "");
        rate("minimal tree written as text", "BM_MinimalTreeWrite", std::nullopt, "");
        rate("writeXml of the large tree", "BM_WriteXmlLarge", std::nullopt, "");
        time("typed tree, small text", "BM_BuildSmall", find("BM_Sax2CopyingSmall"), 1e6, "us",
             "<= 2 x copying SAX2");
        time("clone of the large tree", "BM_CloneLarge", build, 1e3, "ms", "");
        time("delete of the large tree", "BM_DeleteLarge", build, 1e3, "ms", "<= 0.25 of build");
        time("delete of the minimal tree", "BM_MinimalTreeDelete", find("BM_MinimalTreeBuild"), 1e3,
             "ms", "");
        multiple("heap kept by the tree", "kept", "<= 5 x input");
        multiple("peak heap while building", "peak", "<= 7 x input");
    }

private:
    std::optional<Figure> find(const std::string& name) const {
        const auto found = figures_.find(name);
        if (found == figures_.end()) return std::nullopt;
        return found->second;
    }

    static void row(const char* label, double value, const char* unit, std::optional<double> ratio,
                    const char* goal) {
        char text[32];
        std::snprintf(text, sizeof text, "%.1f %s", value, unit);
        if (ratio)
            std::printf("%-40s %14s %10.2f  %s\n", label, text, *ratio, goal);
        else
            std::printf("%-40s %14s %10s  %s\n", label, text, "", goal);
    }

    // Throughput in MB/s, as a ratio to `base`'s throughput.
    void rate(const char* label, const std::string& name, const std::optional<Figure>& base,
              const char* goal) const {
        const auto figure = find(name);
        if (!figure) return;
        std::optional<double> ratio;
        if (base && base->bytesPerSecond > 0) ratio = figure->bytesPerSecond / base->bytesPerSecond;
        row(label, figure->bytesPerSecond / 1e6, "MB/s", ratio, goal);
    }

    // Time per call, as a ratio to `base`'s time.
    void time(const char* label, const std::string& name, const std::optional<Figure>& base,
              double scale, const char* unit, const char* goal) const {
        const auto figure = find(name);
        if (!figure) return;
        std::optional<double> ratio;
        if (base && base->seconds > 0) ratio = figure->seconds / base->seconds;
        row(label, figure->seconds * scale, unit, ratio, goal);
    }

    void multiple(const char* label, const std::string& counter, const char* goal) const {
        const auto figure = find("BM_HeapOfLargeTree/iterations:1");
        if (!figure || figure->counters.count(counter) == 0) return;
        row(label, figure->counters.at(counter), "x input", std::nullopt, goal);
    }

    std::map<std::string, Figure> figures_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
