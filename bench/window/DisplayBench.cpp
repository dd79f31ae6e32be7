/// What it costs to fill a document with a scenery text in colours; and beside that, to show another document, to
/// change the state of one pack and of all packs, and to move a line.
#include "mainwindow/Colouring.h"
#include "mainwindow/Toggling.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/DesktopWindow.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <malloc.h>

namespace {

struct Scenery {
    String text = U"I\n1000 version\nSCENERY\n\n";
    /// Every tenth line.
    std::vector<Int64> marks;
};

Scenery MakeScenery(Int64 lines)
{
    Scenery scenery;
    for (Int64 line = 0; line < lines; ++line) {
        if (line % 10 == 0) scenery.marks.push_back(std::ssize(scenery.text));
        scenery.text += line % 3 == 0 ? U"SCENERY_PACK_DISABLED Custom Scenery/" : U"SCENERY_PACK Custom Scenery/";
        scenery.text += U"Forêts des Vosges " + ToText(line) + U"/\n";
    }
    return scenery;
}

class Area : public benchmark::Fixture {
public:
    std::array<std::optional<TextDocument>, 2> documents;
    std::optional<DesktopWindow> window;
    std::optional<DesktopTextArea> area;
    Scenery scenery;

    void SetUp(benchmark::State& state) override
    {
        scenery = MakeScenery(state.range(0));
        window.emplace(WindowStyle{.title = U"Bench", .width = 760, .height = 500});
        area.emplace(*window, Placement{20, 20, 720, 460});
        for (std::optional<TextDocument>& document : documents)
            document.emplace(SceneryColours());
        area->SetDocument(*documents[0]);
        window->Show();
        Fill();
    }
    void TearDown(benchmark::State&) override
    {
        area.reset();
        window.reset();
    }
    void Fill()
    {
        for (std::optional<TextDocument>& document : documents)
            document->SetText(scenery.text, scenery.marks);
        area->Select(std::ssize(scenery.text) / 2, 0);
        area->ScrollTo(std::ssize(scenery.text) / 2, 5);
        DesktopApplication::YieldToPlatform();
    }
    void Toggle()
    {
        const auto [first, text] = area->SelectedLines();
        std::optional<Toggled> toggled =
            ToggleLines(text, {area->SelectionStart() - first, area->SelectionLength()}, ToggleMode::Invert);
        for (TextChange& change : toggled->changes)
            change.start += first;
        area->Change(toggled->changes, toggled->selection.start + first, toggled->selection.length);
        DesktopApplication::YieldToPlatform();
    }
};

BENCHMARK_DEFINE_F(Area, Fill)(benchmark::State& state)
{
    for (auto _ : state) {
        documents[0]->SetText(scenery.text, scenery.marks);
        DesktopApplication::YieldToPlatform();
    }
}

BENCHMARK_DEFINE_F(Area, ChangeView)(benchmark::State& state)
{
    for (std::size_t shown = 1; auto _ : state) {
        area->SetDocument(*documents[shown]);
        DesktopApplication::YieldToPlatform();
        shown = 1 - shown;
    }
}

std::size_t Allocated()
{
    const auto memory = mallinfo2();
    return memory.hblkhd + memory.uordblks;
}

/// Bytes that the history keeps of each toggled line.
double BytesOf(benchmark::State& state, std::size_t before, Int64 lines)
{
    return static_cast<double>(Allocated() - before) / static_cast<double>(lines * state.iterations());
}

BENCHMARK_DEFINE_F(Area, ToggleOne)(benchmark::State& state)
{
    Toggle();
    const std::size_t before = Allocated();
    for (auto _ : state)
        Toggle();
    state.counters["bytes"] = BytesOf(state, before, 1);
}

BENCHMARK_DEFINE_F(Area, ToggleAll)(benchmark::State& state)
{
    area->Select(0, std::ssize(scenery.text));
    const std::size_t before = Allocated();
    for (auto _ : state)
        Toggle();
    state.counters["bytes"] = BytesOf(state, before, state.range(0));
}

BENCHMARK_DEFINE_F(Area, MoveLine)(benchmark::State& state)
{
    for (bool down = true; auto _ : state) {
        area->MoveLines(down, 3);
        DesktopApplication::YieldToPlatform();
        down = !down;
    }
}

void Sizes(benchmark::internal::Benchmark* of)
{
    of->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10'000)->Arg(100'000);
}

BENCHMARK_REGISTER_F(Area, Fill)->Apply(Sizes)->Arg(1'000'000);
BENCHMARK_REGISTER_F(Area, ChangeView)->Apply(Sizes);
BENCHMARK_REGISTER_F(Area, ToggleOne)->Apply(Sizes);
BENCHMARK_REGISTER_F(Area, ToggleAll)->Apply(Sizes)->Iterations(3);
BENCHMARK_REGISTER_F(Area, MoveLine)->Apply(Sizes);

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    DesktopApplication application(argc, argv, U"Bench", U"0");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
