#include "specialA/Treatment.h"

#include "specialA/FoldedText.h"

#include <algorithm>
#include <unordered_set>

namespace {

/// A row that searches for something.
struct Step {
    const ReplacementRow& row;
    Needle needle{row.searched};
    Int64 count = 0;
};

/// The first piece of a text: some thousand characters, or more where it can't be cut so that no match is.
///
/// A character that no row searches for is never part of a match, and stays where it is whatever the rows do beside it.
/// What lies between two of them can be treated by itself, in a piece that the processor's caches hold.
StringView FirstPiece(StringView text, const std::unordered_set<char32_t>& searched)
{
    constexpr std::size_t wanted = 8000;
    for (std::size_t end = wanted; end < text.size(); ++end)
        if (!searched.contains(FoldCase(text[end]))) return text.substr(0, end);
    return text;
}

/// Adds what is found in a piece to the counts of the steps.
void CountIn(StringView piece, std::span<Step> steps, const std::function<void()>& stepDone)
{
    const FoldedText unchanged(piece);
    for (Step& step : steps) {
        step.count += unchanged.Count(step.needle);
        stepDone();
    }
}

/// Appends a variant of a piece to its destination, which becomes nothing when it would have more than `most`
/// characters.
void AppendVariant(StringView piece, std::span<const Step> steps, String ReplacementRow::*replacement, Int64 most,
                   std::optional<String>& destination, const std::function<void()>& stepDone)
{
    FoldedText variant(piece);
    for (const Step& step : steps) {
        stepDone();
        if (!destination) continue;
        const Int64 room = most - std::ssize(*destination);
        if (!variant.Replace(step.needle, step.row.*replacement, room)) destination.reset();
    }
    if (destination) destination->append(variant.Text());
}

String ReportOf(std::span<const Step> steps)
{
    String missing, found;
    for (const Step& step : steps)
        (step.count == 0 ? missing : found)
            .append(EndOfLine::Native)
            .append(U" • " + ToText(step.count) + U" x “" + step.row.searched + U"”");
    return missing + found;
}

/// What ends a treatment that doesn't go on.
struct Stopped {};

} // namespace

std::optional<Treatment> Treat(StringView original, std::span<const ReplacementRow> rows,
                               const std::function<bool(Int64 done, Int64 total)>& goesOn)
try {
    std::vector<Step> steps;
    std::unordered_set<char32_t> searched;
    for (const ReplacementRow& row : rows) {
        if (row.searched.empty()) continue;
        steps.push_back({row});
        searched.insert(steps.back().needle.folded.begin(), steps.back().needle.folded.end());
    }
    Treatment treatment{.report = {}, .dest1 = String(), .dest2 = String()};
    treatment.dest1->reserve(original.size());
    treatment.dest2->reserve(original.size());

    const Int64 most = std::max(Treatment::MostCharacters, Treatment::MostGrowth * std::ssize(original));
    constexpr Int64 passes = 3;
    const Int64 total = std::ssize(original) * std::ssize(steps) * passes;
    Int64 done = 0;
    for (StringView rest = original; !rest.empty();) {
        const StringView piece = FirstPiece(rest, searched);
        const auto stepDone = [&] {
            done += std::ssize(piece);
            if (goesOn && !goesOn(done, total)) throw Stopped();
        };
        CountIn(piece, steps, stepDone);
        AppendVariant(piece, steps, &ReplacementRow::replacement1, most, treatment.dest1, stepDone);
        AppendVariant(piece, steps, &ReplacementRow::replacement2, most, treatment.dest2, stepDone);
        rest.remove_prefix(piece.size());
    }
    treatment.report = ReportOf(steps);
    return treatment;
} catch (const Stopped&) {
    return {};
}
