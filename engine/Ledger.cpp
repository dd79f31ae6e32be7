#include "engine/Ledger.h"

#include <algorithm>

namespace {

/// What the lines are numbered by; `more` stands behind them.
std::vector<StringView> RestsOf(std::span<const StringView> lines, std::span<const StringView> more = {})
{
    std::vector<StringView> rests;
    rests.reserve(lines.size() + more.size());
    for (const StringView line : lines)
        rests.push_back(ParseLine(line).rest);
    rests.insert(rests.end(), more.begin(), more.end());
    return rests;
}

/// What a result holds of itself, and the blank line.
std::vector<StringView> OwnLines()
{
    std::vector<StringView> lines = LinesOf(TxtDebSpack);
    lines.emplace_back();
    return lines;
}

} // namespace

bool Entry::IsBalanced() const
{
    return std::all_of(tallies_.begin(), tallies_.end(),
                       [](const Tally& tally) { return tally.inSource == tally.inResult; });
}

Ledger::Ledger(std::span<const StringView> source)
    : packs_(source.size() + OwnLines().size())
    , numbers_(packs_.Add(RestsOf(source, OwnLines())))
    , entries_(packs_.Count() + 1)
{
    for (std::size_t index = 0; index < source.size(); ++index)
        ++OfSource(index)[ParseLine(source[index]).state].inSource;
    for (std::size_t index = source.size(); index + 1 < numbers_.size(); ++index)
        ++entries_[numbers_[index]][LineState::Other].inResult;
}

std::vector<Entry*> Ledger::Find(std::span<const StringView> lines)
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
