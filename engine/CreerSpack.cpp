#include "engine/CreerSpack.h"

#include "app/localisation/Localisation.h"
#include "engine/Checks.h"
#include "engine/Ledger.h"
#include "engine/SceneryText.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr auto headerLines =
    1 + static_cast<std::size_t>(std::count(TxtDebSpack.begin(), TxtDebSpack.end(), TxtEoF.front()));

std::vector<StringView> LinesWithoutBlankEnd(StringView text)
{
    std::vector<StringView> lines = LinesOf(text);
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

/// Reports what leaves open which line of the source is meant; true when something was reported.
bool ReportsDoubt(const SceneryLine& line, const Entry& entry, const Report& report)
{
    bool reported = false;
    const auto tell = [&](const String& message, const String& explanation) {
        report(message, explanation);
        reported = true;
    };
    const std::uint32_t count = entry[line.state].inSource;
    if (count > 1) tell(Localisation::Txt_ProbLignPresDxFois(), line.Text());
    if (line.state == LineState::Other) return reported;

    const SceneryLine twin = TwinOf(line);
    const std::uint32_t twinCount = entry[twin.state].inSource;
    if (twinCount > 1) tell(Localisation::Txt_ProbLignPresDxFois(), twin.Text());
    if (count > 0 && twinCount > 0) {
        tell(Localisation::Txt_ProbLignEquiv(), line.Text().append(EndOfLine::Native).append(twin.Text()));
    }
    return reported;
}

/// The line or its twin, whichever the source holds.
std::optional<SceneryLine> InSourceState(const SceneryLine& line, const Entry& entry)
{
    if (entry[line.state].inSource > 0) return line;
    if (line.state == LineState::Other) return std::nullopt;
    const SceneryLine twin = TwinOf(line);
    return entry[twin.state].inSource > 0 ? std::optional(twin) : std::nullopt;
}

/// The body of the result as far as the model knows it. `unknown` receives where the lines of the model begin that the
/// source has in neither state.
std::vector<SceneryLine> PlaceInModelOrder(std::span<const StringView> model, Ledger& ledger,
                                           std::vector<Int64>& unknown, const Report& report)
{
    std::vector<SceneryLine> placed;
    if (model.size() <= headerLines) return placed;
    placed.reserve(model.size() - headerLines);
    const std::vector<Entry*> entries = ledger.Find(model);
    Int64 offset = LongTxtTab(model, LgTxtEoF, headerLines - 1);
    for (std::size_t i = headerLines; i < model.size(); offset += std::ssize(model[i++]) + LgTxtEoF) {
        const SceneryLine line = ParseLine(model[i]);
        const bool blank = model[i].empty();
        if (!blank && ReportsDoubt(line, *entries[i], report)) continue;
        if (const auto wanted = blank ? line : InSourceState(line, *entries[i])) {
            ++(*entries[i])[wanted->state].inResult;
            placed.push_back(*wanted);
        } else {
            unknown.push_back(offset);
        }
    }
    return placed;
}

std::size_t LengthOf(std::span<const SceneryLine> lines)
{
    return std::transform_reduce(lines.begin(), lines.end(), std::size_t{0}, std::plus{}, [](const SceneryLine& line) {
        return line.prefix.size() + line.rest.size() + TxtEoF.size();
    });
}

/// The text of the result: the placed lines, with each line of the source that isn't among them at its own line number,
/// or at the end when the result is shorter. `unplaced` receives where those begin.
///
/// Along the source line numbers only grow, so the text is written from its start to its end, and no line that an
/// insertion pushes down is ever moved.
String WeaveInTheRest(std::span<const SceneryLine> placed, std::span<const StringView> source, Ledger& ledger,
                      std::vector<Int64>& unplaced)
{
    String text;
    text.reserve(LengthOf(placed) + static_cast<std::size_t>(LongTxtTab(source, LgTxtEoF, std::ssize(source) - 1)));
    std::size_t lines = 0;
    const auto append = [&](const SceneryLine& line) {
        text.append(line.prefix).append(line.rest).append(TxtEoF);
        ++lines;
    };
    for (const StringView line : LinesOf(TxtDebSpack))
        append(ParseLine(line));
    for (std::size_t j = headerLines; j < source.size(); ++j) {
        const SceneryLine line = ParseLine(source[j]);
        Tally& tally = ledger.OfSource(j)[line.state];
        if (source[j].empty() || tally.inResult > 0) continue;
        for (; lines < j && !placed.empty(); placed = placed.subspan(1))
            append(placed.front());
        unplaced.push_back(std::ssize(text));
        append(line);
        ++tally.inResult;
    }
    std::for_each(placed.begin(), placed.end(), append);
    return text;
}

} // namespace

void CreerSpack(SceneryTexts& texts, const FolderItem& dossier, const Report& report)
{
    const std::vector<StringView> model = LinesWithoutBlankEnd(texts.TextModel);
    const std::vector<StringView> source = LinesWithoutBlankEnd(texts.TextSrcSpack);
    if (const String twice = TestModelScen(model); !twice.empty()) {
        texts.TextDestSpack = ErrorMarker;
        return report(twice, {});
    }
    Ledger ledger(source);
    const std::vector<SceneryLine> placed = PlaceInModelOrder(model, ledger, texts.CoulModSpack, report);
    texts.TextDestSpack = WeaveInTheRest(placed, source, ledger, texts.CoulDestSpack);

    // Equal counts of every line are what a comparison of both texts with their lines sorted would find.
    if (!ledger.IsBalanced()) return report(Localisation::Txt_ProblemCompInitFinal(), {});
    if (const String folders = TestFolderScen(LinesOf(texts.TextDestSpack), dossier); !folders.empty()) {
        report(folders, {});
    }
}
