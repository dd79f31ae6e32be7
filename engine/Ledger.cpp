#include "engine/Ledger.h"

#include <algorithm>

namespace {

std::vector<StringView> RestsOf(std::span<const SceneryLine> lines)
{
    std::vector<StringView> rests;
    rests.reserve(lines.size());
    for (const SceneryLine& line : lines)
        rests.push_back(line.Rest());
    return rests;
}

/// What a result may hold that the source doesn't: the header, and a blank line behind it.
std::vector<SceneryLine> OwnLines()
{
    std::vector<SceneryLine> lines = LinesOf(TxtDebSpack);
    lines.push_back({{}, LineState::Other});
    return lines;
}

} // namespace

bool Entry::IsBalanced() const
{
    return std::all_of(tallies_.begin(), tallies_.end(),
                       [](const Tally& tally) { return tally.inSource == tally.inResult; });
}

Ledger::Ledger(std::span<const SceneryLine> source)
    : packs_(source.size() + OwnLines().size())
    , ofSource_(packs_.Add(RestsOf(source)))
{
    const std::vector<SceneryLine> own = OwnLines();
    const std::vector<TextNumbers::Number> ofOwn = packs_.Add(RestsOf(own));
    entries_.resize(packs_.Count() + 1);
    for (std::size_t i = 0; i < source.size(); ++i)
        ++OfSource(i)[source[i].state].inSource;
    for (std::size_t i = 0; i + 1 < own.size(); ++i)
        ++entries_[ofOwn[i]][own[i].state].inResult;
}

std::vector<Entry*> Ledger::Find(std::span<const SceneryLine> lines)
{
    std::vector<Entry*> found;
    found.reserve(lines.size());
    for (const TextNumbers::Number number : packs_.Find(RestsOf(lines)))
        found.push_back(&(number == TextNumbers::None ? entries_.back() : entries_[number]));
    return found;
}

bool Ledger::IsBalanced() const
{
    return std::all_of(entries_.begin(), entries_.end(), [](const Entry& entry) { return entry.IsBalanced(); });
}
