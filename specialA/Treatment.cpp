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

/// Appends the two variants of a piece, and adds what is found to the steps. False when a variant grows too long.
bool TreatPiece(StringView piece, std::span<Step> steps, Int64 most, Treatment& treatment,
                const std::function<void()>& stepDone)
{
    const FoldedText unchanged(piece);
    std::array<FoldedText, 2> variants{unchanged, unchanged};
    for (Step& step : steps) {
        step.count += unchanged.Count(step.needle);
        for (std::size_t i = 0; i < variants.size(); ++i) {
            const Int64 room = most - std::ssize(treatment.*destinations[i]);
            if (!variants[i].Replace(step.needle, step.replacements[i], room)) return false;
        }
        stepDone();
    }
    for (std::size_t i = 0; i < variants.size(); ++i)
        (treatment.*destinations[i]).append(variants[i].Text());
    return true;
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

std::optional<Treatment> Treat(StringView original, std::span<const ReplacementRow> rows,
                               const std::function<void(Int64 done, Int64 total)>& progress)
{
    std::vector<Step> steps = StepsOf(rows);
    const Cuts cuts(steps);
    Treatment treatment;
    for (const auto destination : destinations)
        (treatment.*destination).reserve(original.size());

    const Int64 most = std::max(Treatment::MostCharacters, std::ssize(original));
    const Int64 total = std::ssize(original) * std::ssize(steps);
    Int64 done = 0;
    for (StringView rest = original; !rest.empty();) {
        const StringView piece = cuts.First(rest);
        const auto stepDone = [&] {
            done += std::ssize(piece);
            if (progress) progress(done, total);
        };
        if (!TreatPiece(piece, steps, most, treatment, stepDone)) return {};
        rest.remove_prefix(piece.size());
    }
    treatment.report = ReportOf(rows, steps);
    return treatment;
}
