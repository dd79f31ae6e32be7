#include "specialA/Treatment.h"

#include "specialA/FoldedText.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace {

/// A row made ready for searching.
struct Step {
    Needle needle;
    std::array<Replacement, 2> replacements;
    Int64 count = 0;
};

std::vector<Step> StepsOf(std::span<const ReplacementRow> rows)
{
    std::vector<Step> steps;
    for (const ReplacementRow& row : rows)
        if (!row.searched.empty())
            steps.push_back({Needle(row.searched), {Replacement(row.replacement1), Replacement(row.replacement2)}});
    return steps;
}

/// Where a text can be cut so that no match is.
///
/// A character that no row searches for is never part of a match, and stays where it is whatever the rows do beside it.
/// What lies between two of them can be treated by itself, in a piece that the processor's caches hold.
class Cuts {
public:
    explicit Cuts(std::span<const Step> steps)
    {
        for (const Step& step : steps)
            searched_.insert(step.needle.Folded().begin(), step.needle.Folded().end());
    }

    /// The first piece of a text: some thousand characters, or more where it can't be cut.
    [[nodiscard]] StringView First(StringView text) const
    {
        constexpr std::size_t wanted = 8000;
        for (std::size_t end = wanted; end < text.size(); ++end)
            if (!searched_.contains(FoldCase(text[end]))) return text.substr(0, end);
        return text;
    }

private:
    std::unordered_set<char32_t> searched_;
};

constexpr std::array destinations{&Treatment::dest1, &Treatment::dest2};

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
void AppendVariant(StringView piece, std::span<const Step> steps, std::size_t number, Int64 most,
                   std::optional<String>& destination, const std::function<void()>& stepDone)
{
    FoldedText variant(piece);
    for (const Step& step : steps) {
        stepDone();
        if (!destination) continue;
        const Int64 room = most - std::ssize(*destination);
        if (!variant.Replace(step.needle, step.replacements[number], room)) destination.reset();
    }
    if (destination) destination->append(variant.Text());
}

String ReportOf(std::span<const ReplacementRow> rows, std::span<const Step> steps)
{
    String report;
    auto step = steps.begin();
    for (const ReplacementRow& row : rows)
        if (!row.searched.empty())
            report.append(EndOfLine::Native).append(U" • " + ToText((step++)->count) + U" x “" + row.searched + U"”");
    return report;
}

} // namespace

Treatment Treat(StringView original, std::span<const ReplacementRow> rows,
                const std::function<void(Int64 done, Int64 total)>& progress)
{
    std::vector<Step> steps = StepsOf(rows);
    const Cuts cuts(steps);
    Treatment treatment;
    for (const auto destination : destinations)
        (treatment.*destination).emplace().reserve(original.size());

    const Int64 most = std::max(Treatment::MostCharacters, Treatment::MostGrowth * std::ssize(original));
    const Int64 passes = 1 + std::ssize(destinations);
    const Int64 total = std::ssize(original) * std::ssize(steps) * passes;
    Int64 done = 0;
    for (StringView rest = original; !rest.empty();) {
        const StringView piece = cuts.First(rest);
        const auto stepDone = [&] {
            done += std::ssize(piece);
            if (progress) progress(done, total);
        };
        CountIn(piece, steps, stepDone);
        for (std::size_t i = 0; i < destinations.size(); ++i)
            AppendVariant(piece, steps, i, most, treatment.*destinations[i], stepDone);
        rest.remove_prefix(piece.size());
    }
    treatment.report = ReportOf(rows, steps);
    return treatment;
}
