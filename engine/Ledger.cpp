#include "engine/Ledger.h"

#include "engine/ManyTexts.h"

#include <algorithm>
#include <iterator>

namespace {

/// What stands behind the prefixes of all lines of the model, of the source and of the header.
std::vector<std::size_t> NumbersOf(std::initializer_list<std::span<const SceneryLine>> texts)
{
    std::vector<StringView> rests;
    for (const std::span<const SceneryLine> lines : texts)
        std::ranges::transform(lines, std::back_inserter(rests), &SceneryLine::Rest);
    return TextNumbers(rests);
}

} // namespace

bool Entry::IsBalanced() const
{
    return std::ranges::all_of(tallies_, [](const Tally& tally) { return tally.inSource == tally.inResult; });
}

Ledger::Ledger(std::span<const SceneryLine> model, std::span<const SceneryLine> source)
    : modelLines_(model.size())
{
    const std::vector<SceneryLine> header = LinesOf(TxtDebSpack);
    numbers_ = NumbersOf({model, source, header});
    entries_.resize(1 + *std::ranges::max_element(numbers_));
    for (std::size_t i = 0; i < source.size(); ++i)
        ++OfSource(i)[source[i].state].inSource;
    for (std::size_t i = 0; i < header.size(); ++i)
        ++OfSource(source.size() + i)[header[i].state].inResult;
}

bool Ledger::IsBalanced() const
{
    return std::ranges::all_of(entries_, [](const Entry& entry) { return entry.IsBalanced(); });
}
