/// What it costs to show a scenery text in colours, beside showing the same text without them; and to change the state
/// of all its packs, which can be undone.
#include "mainwindow/Colouring.h"
#include "mainwindow/Toggling.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/DesktopTextArea.h"

#include <benchmark/benchmark.h>
#include <cstdlib>

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
    std::optional<DesktopWindow> window;
    std::optional<DesktopTextArea> area;
    Scenery scenery;

    void SetUp(benchmark::State& state) override
    {
        scenery = MakeScenery(state.range(0));
        window.emplace(WindowStyle{.title = U"Bench", .width = 760, .height = 500});
        area.emplace(*window, Placement{20, 20, 720, 460});
        window->Show();
        DesktopApplication::YieldToPlatform();
    }
    void TearDown(benchmark::State& state) override
    {
        state.SetComplexityN(state.range(0));
        area.reset();
        window.reset();
    }
};

BENCHMARK_DEFINE_F(Area, Plain)(benchmark::State& state)
{
    for (auto _ : state) {
        area->SetText(scenery.text);
        DesktopApplication::YieldToPlatform();
    }
}

BENCHMARK_DEFINE_F(Area, Coloured)(benchmark::State& state)
{
    for (auto _ : state) {
        area->SetStyledText(scenery.text, ColourText(scenery.text, scenery.marks).spans);
        DesktopApplication::YieldToPlatform();
    }
}

BENCHMARK_DEFINE_F(Area, Toggled)(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        area->SetStyledText(scenery.text, ColourText(scenery.text, {}).spans);
        area->Select(0, std::ssize(scenery.text));
        DesktopApplication::YieldToPlatform();
        state.ResumeTiming();
        const Selection selection{area->SelectionStart(), area->SelectionLength()};
        const std::optional<Toggled> toggled = ToggleLines(area->Text(), selection, ToggleMode::Invert);
        area->ReplaceStyledText(toggled->text, ColourText(toggled->text, {}).spans);
        area->Select(toggled->selection.start, toggled->selection.length);
        DesktopApplication::YieldToPlatform();
    }
}

BENCHMARK_REGISTER_F(Area, Plain)->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10'000)->Arg(100'000)->Arg(1'000'000);
BENCHMARK_REGISTER_F(Area, Coloured)
    ->Unit(benchmark::kMillisecond)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Complexity(benchmark::oN);
BENCHMARK_REGISTER_F(Area, Toggled)->Unit(benchmark::kMillisecond)->Arg(10'000)->Arg(100'000);

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    DesktopApplication application(argc, argv, U"Bench", U"0");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
