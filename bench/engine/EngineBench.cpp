/// What a run costs: in time for each line, and in memory for the whole process.
#include "bench/engine/SampleTexts.h"
#include "engine/Checks.h"
#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "tests/TemporaryFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <sys/resource.h>

namespace {

constexpr double kilobyte = 1024;

void CountCost(benchmark::State& state, double lines)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peakBytes"] = static_cast<double>(usage.ru_maxrss) * kilobyte;
    using benchmark::Counter;
    state.counters["perLine"] = Counter(lines, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

std::size_t SizeOf(const benchmark::State& state) { return static_cast<std::size_t>(state.range(0)); }

void Reorder(benchmark::State& state, Shape shape)
{
    const TemporaryFolder empty;
    const FolderItem dossier(empty.Path());
    Sample sample = MakeSample(shape, SizeOf(state));
    SceneryTexts texts{std::move(sample.model), std::move(sample.source), {}, {}, {}};
    std::size_t reports = 0;
    for (auto _ : state) {
        texts.InitVars(false, false);
        texts.CoulModSpack.clear();
        CreerSpack(texts, dossier, [&reports](const String&, const String&) { ++reports; });
        benchmark::DoNotOptimize(texts.TextDestSpack.data());
    }
    CountCost(state, static_cast<double>(state.range(0)));
    state.counters["reports"] = benchmark::Counter(static_cast<double>(reports), benchmark::Counter::kAvgIterations);
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
    for (auto _ : state) {
        const String model = FoldCase(sample.model);
        const String source = FoldCase(sample.source);
        benchmark::DoNotOptimize(SortedLines(model).data());
        benchmark::DoNotOptimize(SortedLines(source).data());
    }
    CountCost(state, static_cast<double>(state.range(0)));
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
    for (auto _ : state)
        benchmark::DoNotOptimize(TestFolderScen(lines, FolderItem(temporary.Path())));
    CountCost(state, static_cast<double>(state.range(0)));
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

BENCHMARK_MAIN();
