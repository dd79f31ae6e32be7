/// What a run costs: in time for each line, and in memory for the whole process.
#include "bench/engine/SampleTexts.h"
#include "engine/Checks.h"
#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "tests/TemporaryFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <climits>
#include <malloc.h>
#include <sys/resource.h>

namespace {

constexpr double kilobyte = 1024;

std::size_t SizeOf(const benchmark::State& state) { return static_cast<std::size_t>(state.range(0)); }

/// Times `run` over and over, after a first run that has to get its memory from the system.
template <class Run>
void Measure(benchmark::State& state, Run run)
{
    using benchmark::Counter;
    run();
    for (auto _ : state)
        run();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peakBytes"] = static_cast<double>(usage.ru_maxrss) * kilobyte;
    state.counters["perLine"] =
        Counter(static_cast<double>(state.range(0)), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void Reorder(benchmark::State& state, Shape shape)
{
    const TemporaryFolder empty;
    const FolderItem dossier(empty.Path());
    Sample sample = MakeSample(shape, SizeOf(state));
    SceneryTexts texts{std::move(sample.model), std::move(sample.source), {}, {}, {}};
    Measure(state, [&] {
        texts.TextDestSpack.clear();
        texts.CoulModSpack.clear();
        texts.CoulDestSpack.clear();
        CreerSpack(texts, dossier,
                   [](const String& message, const String&) { benchmark::DoNotOptimize(message.data()); });
    });
}

std::vector<StringView> SortedLines(StringView text)
{
    std::vector<StringView> lines = Split(text, TxtEoF);
    std::sort(lines.begin(), lines.end());
    return lines;
}

/// What any comparison of two texts must do at the least when it sorts: split, fold and sort both of them once.
void SplitFoldSort(benchmark::State& state)
{
    const Sample sample = MakeSample(Shape::Shuffled, SizeOf(state));
    Measure(state, [&sample] {
        const String model = FoldCase(sample.model);
        const String source = FoldCase(sample.source);
        benchmark::DoNotOptimize(SortedLines(model).data());
        benchmark::DoNotOptimize(SortedLines(source).data());
    });
}

/// `lines` packs, and a folder for each of the first 10,000.
void CheckFolders(benchmark::State& state)
{
    constexpr std::size_t folders = 10'000;
    const TemporaryFolder temporary;
    const Sample sample = MakeSample(Shape::Shuffled, SizeOf(state));
    const std::vector<SceneryLine> lines = LinesOf(sample.model);
    for (std::size_t i = 0; i < std::min(folders, lines.size()); ++i) {
        if (const StringView name = RetScenLigne(lines[i].text); !name.empty()) temporary.Folder(std::u32string(name));
    }
    Measure(state, [&] { benchmark::DoNotOptimize(TestFolderScen(lines, FolderItem(temporary.Path())).data()); });
}

void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1'000, 1'000'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(Reorder, Shuffled, Shape::Shuffled)->Apply(Sizes);
BENCHMARK_CAPTURE(Reorder, Inverted, Shape::Inverted)->Apply(Sizes);
BENCHMARK_CAPTURE(Reorder, FirstHalfUnknown, Shape::FirstHalfUnknown)->Apply(Sizes);
BENCHMARK_CAPTURE(Reorder, NothingKnown, Shape::NothingKnown)->Apply(Sizes);
BENCHMARK_CAPTURE(Reorder, EveryLineTwice, Shape::EveryLineTwice)->Apply(Sizes);
BENCHMARK_CAPTURE(Reorder, LastCharacter, Shape::LastCharacter)->Apply(Sizes);
BENCHMARK(SplitFoldSort)->Apply(Sizes);
BENCHMARK(CheckFolders)->RangeMultiplier(10)->Range(1'000, 100'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    // A fresh page costs ten times as much on one system as on another, and that is no property of the engine: what a
    // first run has got stays with the process.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
