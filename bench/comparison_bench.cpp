// The library beside the bare parser: building, writing, copying and
// deleting the trees of a large and a small configuration, with libxml2's
// SAX2 parser (and pugixml, where installed) over the same bytes.
// KAZBENCH_MB sets the size of the large configuration (default 20).

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "baselines.h"
#include "configgen.h"
#include "heapcount.h"
#include "kazparser.h"

#ifdef KAZBENCH_PUGIXML
#include <pugixml.hpp>
#include <sstream>
#endif

namespace {

using kaz::kazparser::INodeCfg;
using kaz::kazparser::KAZConfigFactory;
using Tree = std::unique_ptr<INodeCfg>;

struct Text {
    std::wstring wide;
    std::string utf8;
};

Text makeText(std::wstring wide) {
    std::string utf8 = kazbench::utf8(wide);
    return {std::move(wide), std::move(utf8)};
}

const Text& large() {
    static const Text text = [] {
        const char* megabytes = std::getenv("KAZBENCH_MB");
        const double size = megabytes != nullptr ? std::atof(megabytes) : 20.0;
        return makeText(kazbench::presentationGroup(static_cast<std::size_t>(size * 1e6)));
    }();
    return text;
}

const Text& small() {
    static const Text text = makeText(kazbench::presentationElement());
    return text;
}

Tree buildLarge() {
    Tree tree(KAZConfigFactory::createPresentationGroupCfg(&large().wide, nullptr));
    if (tree == nullptr) throw std::runtime_error("the large configuration does not load");
    return tree;
}

const INodeCfg& largeTree() {
    static const Tree tree = buildLarge();
    return *tree;
}

void setBytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(bytes));
}

void expect(benchmark::State& state, bool ok) {
    if (!ok) state.SkipWithError("the text was refused");
}

// Parses the large text with `parse()`, which answers whether it was taken.
template <class Parse>
void parseLargeWith(benchmark::State& state, Parse&& parse) {
    for (auto _ : state) expect(state, parse());
    setBytes(state, large().utf8.size());
}

void BM_Sax2Empty(benchmark::State& state) {
    parseLargeWith(state, [] { return kazbench::parseWithEmptyCallbacks(large().utf8); });
}
BENCHMARK(BM_Sax2Empty)->Unit(benchmark::kMillisecond);

void BM_Sax2Copying(benchmark::State& state) {
    parseLargeWith(state, [] { return kazbench::parseWithCopyingCallbacks(large().utf8); });
}
BENCHMARK(BM_Sax2Copying)->Unit(benchmark::kMillisecond);

void BM_ReaderEmpty(benchmark::State& state) {
    parseLargeWith(state, [] { return kazbench::parseWithReader(large().wide); });
}
BENCHMARK(BM_ReaderEmpty)->Unit(benchmark::kMillisecond);

void BM_Sax2CopyingSmall(benchmark::State& state) {
    for (auto _ : state) expect(state, kazbench::parseWithCopyingCallbacks(small().utf8));
}
BENCHMARK(BM_Sax2CopyingSmall)->Unit(benchmark::kMicrosecond);

#ifdef KAZBENCH_PUGIXML
void BM_PugixmlLoad(benchmark::State& state) {
    for (auto _ : state) {
        pugi::xml_document document;
        expect(state, document.load_buffer(large().utf8.data(), large().utf8.size()));
    }
    setBytes(state, large().utf8.size());
}
BENCHMARK(BM_PugixmlLoad)->Unit(benchmark::kMillisecond);

void BM_PugixmlSave(benchmark::State& state) {
    pugi::xml_document document;
    document.load_buffer(large().utf8.data(), large().utf8.size());
    std::size_t written = 0;
    for (auto _ : state) {
        std::ostringstream out;
        document.save(out, "", pugi::format_raw);
        written = out.str().size();
    }
    setBytes(state, written);
}
BENCHMARK(BM_PugixmlSave)->Unit(benchmark::kMillisecond);
#endif

// Runs `step` with the clock stopped.
template <class Step>
void untimed(benchmark::State& state, Step step) {
    state.PauseTiming();
    step();
    state.ResumeTiming();
}

// glibc merges the small blocks a delete has freed only at the next request
// too large for its small-block lists; making one here charges that work to
// the delete that caused it and not to whatever is timed next. (The block
// is small enough that freeing it returns no memory to the system.)
void settleHeap() {
    void* block = std::malloc(4096);
    benchmark::DoNotOptimize(block);
    std::free(block);
}

void deleteTree(Tree& tree) {
    tree.reset();
    settleHeap();
}

// Times `create` on the large text; deleting the tree is not timed.
void buildLargeWith(benchmark::State& state, INodeCfg* (*create)(const std::wstring*, INodeCfg*)) {
    for (auto _ : state) {
        Tree tree(create(&large().wide, nullptr));
        expect(state, tree != nullptr);
        untimed(state, [&] { deleteTree(tree); });
    }
    setBytes(state, large().utf8.size());
}

void BM_BuildLarge(benchmark::State& state) {
    buildLargeWith(state, [](const std::wstring* text, INodeCfg* parent) -> INodeCfg* {
        return KAZConfigFactory::createPresentationGroupCfg(text, parent);
    });
}
BENCHMARK(BM_BuildLarge)->Unit(benchmark::kMillisecond);

void BM_BuildGenericLarge(benchmark::State& state) {
    buildLargeWith(state, [](const std::wstring* text, INodeCfg* parent) -> INodeCfg* {
        return KAZConfigFactory::createXNodeCfg(text, parent);
    });
}
BENCHMARK(BM_BuildGenericLarge)->Unit(benchmark::kMillisecond);

// A new call each time, as a host loading many small configurations makes.
void BM_BuildSmall(benchmark::State& state) {
    for (auto _ : state) {
        Tree tree(KAZConfigFactory::createPresentationElementCfg(&small().wide, nullptr));
        expect(state, tree != nullptr);
    }
}
BENCHMARK(BM_BuildSmall)->Unit(benchmark::kMicrosecond);

// The UTF-8 size of the large tree's text.
std::size_t writtenSize() {
    static const std::size_t size = kazbench::utf8(largeTree().toXml()).size();
    return size;
}

// Each run writes a fresh copy, whose text buffer starts empty.
void BM_ToXmlLarge(benchmark::State& state) {
    for (auto _ : state) {
        Tree copy;
        untimed(state, [&] { copy.reset(largeTree().clone()); });
        benchmark::DoNotOptimize(copy->toXml().size());
        untimed(state, [&] { deleteTree(copy); });
    }
    setBytes(state, writtenSize());
}
BENCHMARK(BM_ToXmlLarge)->Unit(benchmark::kMillisecond);

// The least any fresh text of the large tree's length costs: a new wide
// string of that many characters, each written once (its pages are first
// touched here, as a fresh toXml's are).
void BM_FreshTextOfToXmlLength(benchmark::State& state) {
    const std::size_t characters = largeTree().toXml().size();
    for (auto _ : state) {
        std::optional<std::wstring> text(std::in_place, characters, L'x');
        benchmark::DoNotOptimize(text->data());
        untimed(state, [&] { text.reset(); });
    }
    setBytes(state, writtenSize());
}
BENCHMARK(BM_FreshTextOfToXmlLength)->Unit(benchmark::kMillisecond);

const kazbench::MinimalNode& minimalTree() {
    static const auto tree = kazbench::buildMinimalTree(large().utf8);
    return *tree;
}

// The floor for writing a tree as one fresh wide text: the minimal tree
// written into a string reserved to the text's length beforehand (no
// growth, each page first touched by the writing). Its rate is of the UTF-8
// size of what it writes.
void BM_MinimalTreeWrite(benchmark::State& state) {
    static const std::wstring whole = [] {
        std::wstring text;
        kazbench::writeMinimalTree(minimalTree(), text);
        return text;
    }();
    static const std::size_t written = kazbench::utf8(whole).size();
    for (auto _ : state) {
        std::optional<std::wstring> text(std::in_place);
        text->reserve(whole.size());
        kazbench::writeMinimalTree(minimalTree(), *text);
        untimed(state, [&] { text.reset(); });
    }
    setBytes(state, written);
}
BENCHMARK(BM_MinimalTreeWrite)->Unit(benchmark::kMillisecond);

// Pieces handed to a writer that only counts them.
class CountingWriter final : public tableobj::IXmlWriter {
public:
    bool write(std::wstring piece) override {
        characters += piece.size();
        return true;
    }
    std::size_t characters = 0;
};

void BM_WriteXmlLarge(benchmark::State& state) {
    for (auto _ : state) {
        CountingWriter writer;
        largeTree().writeXml(writer);
        benchmark::DoNotOptimize(writer.characters);
    }
    setBytes(state, writtenSize());
}
BENCHMARK(BM_WriteXmlLarge)->Unit(benchmark::kMillisecond);

void BM_CloneLarge(benchmark::State& state) {
    for (auto _ : state) {
        Tree copy(largeTree().clone());
        untimed(state, [&] { deleteTree(copy); });
    }
}
BENCHMARK(BM_CloneLarge)->Unit(benchmark::kMillisecond);

// Builds and deletes (untimed) the trees `build()` answers.
template <class Build>
void buildMinimalWith(benchmark::State& state, Build&& build) {
    for (auto _ : state) {
        auto tree = build();
        expect(state, tree != nullptr);
        untimed(state, [&] {
            tree.reset();
            settleHeap();
        });
    }
    setBytes(state, large().utf8.size());
}

// The floor of a tree of separate heap nodes: see kazbench::MinimalNode.
void BM_MinimalTreeBuild(benchmark::State& state) {
    buildMinimalWith(state, [] { return kazbench::buildMinimalTree(large().utf8); });
}
BENCHMARK(BM_MinimalTreeBuild)->Unit(benchmark::kMillisecond);

void BM_MinimalTreeThroughReader(benchmark::State& state) {
    buildMinimalWith(state, [] { return kazbench::buildMinimalTreeThroughReader(large().wide); });
}
BENCHMARK(BM_MinimalTreeThroughReader)->Unit(benchmark::kMillisecond);

void BM_MinimalTreeDelete(benchmark::State& state) {
    for (auto _ : state) {
        std::unique_ptr<kazbench::MinimalNode> tree;
        untimed(state, [&] { tree = kazbench::buildMinimalTree(large().utf8); });
        tree.reset();
        settleHeap();
    }
}
BENCHMARK(BM_MinimalTreeDelete)->Unit(benchmark::kMillisecond);

void BM_DeleteLarge(benchmark::State& state) {
    for (auto _ : state) {
        Tree tree;
        untimed(state, [&] { tree = buildLarge(); });
        deleteTree(tree);
    }
}
BENCHMARK(BM_DeleteLarge)->Unit(benchmark::kMillisecond);

// Heap kept by the tree and the most in use while it was built, as
// multiples of the input's UTF-8 size (the input string itself excluded).
void BM_HeapOfLargeTree(benchmark::State& state) {
    double kept = 0, peak = 0;
    for (auto _ : state) {
        std::optional<kazbench::heap::Counting> heap(std::in_place);
        Tree tree = buildLarge();
        const auto input = static_cast<double>(large().utf8.size());
        kept = static_cast<double>(heap->live()) / input;
        peak = static_cast<double>(heap->peak()) / input;
        heap.reset();
        untimed(state, [&] { deleteTree(tree); });
    }
    state.counters["kept"] = kept;
    state.counters["peak"] = peak;
}
BENCHMARK(BM_HeapOfLargeTree)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
