// Throughput of reading configurations into trees and writing them back.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "kazparser.h"

namespace {

using kaz::kazparser::INodeCfg;
using kaz::kazparser::KAZConfigFactory;

// A configuration of `sets` parameter sets of eight typed parameters each.
std::wstring parameterText(int sets) {
    std::wstring text = L"<ParamSets>";
    for (int s = 0; s < sets; ++s) {
        text += L"<ParamSet name=\"Set" + std::to_wstring(s) + L"\" desc=\"generated\">";
        for (int p = 0; p < 8; ++p)
            text += L"<P" + std::to_wstring(p) +
                    L" shift=\"0.5\" scaleRelate=\"true\"><UseDouble>" + std::to_wstring(p * 1.25) +
                    L"</UseDouble></P" + std::to_wstring(p) + L">";
        text += L"</ParamSet>";
    }
    return text + L"</ParamSets>";
}

// A generic document of `elements` elements with attributes and text.
std::wstring genericText(int elements) {
    std::wstring text = L"<Root>";
    for (int i = 0; i < elements; ++i)
        text += L"<Item id=\"" + std::to_wstring(i) + L"\" kind=\"road &amp; rail\">label " +
                std::to_wstring(i) + L"</Item>";
    return text + L"</Root>";
}

// Reported as items: characters of configuration text per second.
void setCharacters(benchmark::State& state, const std::wstring& text) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(text.size()));
}

void BM_BuildParameterSets(benchmark::State& state) {
    const std::wstring text = parameterText(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::unique_ptr<INodeCfg> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
        benchmark::DoNotOptimize(root.get());
    }
    setCharacters(state, text);
}
BENCHMARK(BM_BuildParameterSets)->Arg(1)->Arg(64)->Arg(1024);

void BM_BuildGeneric(benchmark::State& state) {
    const std::wstring text = genericText(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::unique_ptr<INodeCfg> root(KAZConfigFactory::createXNodeCfg(&text, nullptr));
        benchmark::DoNotOptimize(root.get());
    }
    setCharacters(state, text);
}
BENCHMARK(BM_BuildGeneric)->Arg(1)->Arg(1024)->Arg(16384);

void BM_WriteParameterSets(benchmark::State& state) {
    const std::wstring text = parameterText(static_cast<int>(state.range(0)));
    std::unique_ptr<INodeCfg> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
    for (auto _ : state) benchmark::DoNotOptimize(root->toXml().data());
    setCharacters(state, text);
}
BENCHMARK(BM_WriteParameterSets)->Arg(64)->Arg(1024);

void BM_CloneParameterSets(benchmark::State& state) {
    const std::wstring text = parameterText(static_cast<int>(state.range(0)));
    std::unique_ptr<INodeCfg> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
    for (auto _ : state) std::unique_ptr<INodeCfg> copy(root->clone());
}
BENCHMARK(BM_CloneParameterSets)->Arg(64)->Arg(1024);

// One attribute value holding `n` root-directory macros: the replacement
// must stay linear in the value's length.
void BM_MacrosInOneAttribute(benchmark::State& state) {
    std::wstring value;
    for (int64_t i = 0; i < state.range(0); ++i) value += L"[Kestrelon.RootDirectory];";
    const std::wstring text = L"<Root a=\"" + value + L"\"/>";
    for (auto _ : state) {
        std::unique_ptr<INodeCfg> root(KAZConfigFactory::createNodeCfg(&text, nullptr));
        benchmark::DoNotOptimize(root.get());
    }
    setCharacters(state, text);
}
BENCHMARK(BM_MacrosInOneAttribute)->Arg(12500)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
