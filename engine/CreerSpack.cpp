#include "engine/CreerSpack.h"

#include "engine/Checks.h"
#include "engine/Comparison.h"
#include "engine/Ledger.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"

#include <algorithm>

namespace {

/// Reports what leaves open which line of the source is meant; true when something was reported.
bool ReportsDoubt(const SceneryLine& line, const Entry& entry, const Report& report)
{
    bool reported = false;
    const auto tell = [&](const String& message, const String& explanation) {
        report(message, explanation);
        reported = true;
    };
    const std::size_t count = entry[line.state].inSource;
    if (count > 1) tell(Localisation::Txt_ProbLignPresDxFois(), String(line.text));
    if (line.state == LineState::Other) return reported;

    const std::size_t twinCount = entry[TwinOf(line.state)].inSource;
    if (twinCount > 1) tell(Localisation::Txt_ProbLignPresDxFois(), line.Twin());
    if (count > 0 && twinCount > 0) {
        tell(Localisation::Txt_ProbLignEquiv(), String(line.text).append(EndOfLine::Native).append(line.Twin()));
    }
    return reported;
}

/// A line of the model in the state that it has in the result.
struct PlacedLine {
    const SceneryLine* line;
    LineState state;

    [[nodiscard]] StringView Prefix() const { return state == line->state ? line->Prefix() : PrefixOf(state); }
    [[nodiscard]] StringView Rest() const { return line->Rest(); }
};

/// The body of the result as far as the model knows it. `unknown` receives where the lines of the model begin that the
/// source has in neither state.
std::vector<PlacedLine> PlaceInModelOrder(std::span<const SceneryLine> model, Ledger& ledger,
                                          std::vector<Int64>& unknown, const Report& report)
{
    std::vector<PlacedLine> placed;
    if (model.size() <= HeaderLines) return placed;
    placed.reserve(model.size() - HeaderLines);
    Int64 offset = LongTxtTab(model.first(HeaderLines));
    for (std::size_t i = HeaderLines; i < model.size(); offset += std::ssize(model[i++].text) + LgTxtEoF) {
        const SceneryLine& line = model[i];
        Entry& entry = ledger.OfModel(i);
        const bool blank = line.text.empty();
        if (!blank && ReportsDoubt(line, entry, report)) continue;
        const LineState state = blank || entry[line.state].inSource > 0 ? line.state : TwinOf(line.state);
        if (blank || entry[state].inSource > 0) {
            placed.push_back({&line, state});
            ++entry[state].inResult;
        } else {
            unknown.push_back(offset);
        }
    }
    return placed;
}

std::size_t LengthOf(std::span<const PlacedLine> lines)
{
    std::size_t length = 0;
    for (const PlacedLine& line : lines)
        length += line.Prefix().size() + line.Rest().size() + TxtEoF.size();
    return length;
}

/// Makes `text` the result: the placed lines, with each line of the source that isn't among them at its own line
/// number, or at the end when the result is shorter. `unplaced` receives where those begin.
///
/// Along the source line numbers only grow, so the text is written from its start to its end, and no line that an
/// insertion pushes down is ever moved.
void WeaveInTheRest(std::span<const PlacedLine> placed, std::span<const SceneryLine> source, Ledger& ledger,
                    std::vector<Int64>& unplaced, String& text)
{
    text.reserve(LengthOf(placed) + static_cast<std::size_t>(LongTxtTab(source)));
    text.assign(TxtDebSpack).append(TxtEoF);
    std::size_t lines = HeaderLines;
    const auto append = [&](const auto& line) {
        text.append(line.Prefix()).append(line.Rest()).append(TxtEoF);
        ++lines;
    };
    for (std::size_t j = HeaderLines; j < source.size(); ++j) {
        Tally& tally = ledger.OfSource(j)[source[j].state];
        if (source[j].text.empty() || tally.inResult > 0) continue;
        for (; lines < j && !placed.empty(); placed = placed.subspan(1))
            append(placed.front());
        unplaced.push_back(std::ssize(text));
        append(source[j]);
        ++tally.inResult;
    }
    std::for_each(placed.begin(), placed.end(), append);
}

/// Makes the result and its marks; true when it holds the very lines of the source.
bool Reorder(SceneryTexts& texts, std::span<const SceneryLine> model, std::span<const SceneryLine> source,
             const Report& report)
{
    Ledger ledger(model, source);
    const std::vector<PlacedLine> placed = PlaceInModelOrder(model, ledger, texts.CoulModSpack, report);
    WeaveInTheRest(placed, source, ledger, texts.CoulDestSpack, texts.TextDestSpack);
    // Once sorted, both texts are the same when each line has the same count on both sides.
    return ledger.IsBalanced();
}

} // namespace

void CreerSpack(SceneryTexts& texts, const FolderItem& dossier, const Report& report)
{
    const std::vector<SceneryLine> model = LinesWithoutBlankEnd(texts.TextModel);
    if (const String twice = TestModelScen(model); !twice.empty()) {
        texts.TextDestSpack = ErrorMarker;
        return report(twice, {});
    }
    const std::vector<SceneryLine> source = LinesWithoutBlankEnd(texts.TextSrcSpack);
    const bool balanced = Reorder(texts, model, source, report);
    std::vector<SceneryLine> result = LinesOf(texts.TextDestSpack);
    // Behind the last line end stands no line.
    result.pop_back();
    if (!balanced) return report(Localisation::Txt_ProblemCompInitFinal(), ExplainDifferences(source, result));
    if (const String folders = TestFolderScen(result, dossier); !folders.empty()) report(folders, {});
}
