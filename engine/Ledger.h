/// What the source holds against what the result has got.
#pragma once

#include "engine/SceneryText.h"
#include "engine/TextNumbers.h"

#include <array>

/// How often a line stands in the source and in the result, whatever its case.
struct Tally {
    std::uint32_t inSource = 0;
    std::uint32_t inResult = 0;
};

/// The tallies of all lines that have the same text behind their prefix: a pack line is beside its twin.
class Entry {
public:
    Tally& operator[](LineState state) { return tallies_[static_cast<std::size_t>(state)]; }
    const Tally& operator[](LineState state) const { return tallies_[static_cast<std::size_t>(state)]; }
    [[nodiscard]] bool IsBalanced() const;

private:
    std::array<Tally, 3> tallies_;
};

/// Counts the lines of the source and of the result, so that one look-up tells all about a line and its twin.
///
/// The result begins with the header.
class Ledger {
public:
    explicit Ledger(std::span<const SceneryLine> source);

    /// The entry of line `index` of the source.
    Entry& OfSource(std::size_t index) { return entries_[ofSource_[index]]; }
    /// The entries of other lines in their order; lines that neither side holds share one without any count.
    std::vector<Entry*> Find(std::span<const SceneryLine> lines);

    /// Whether the result holds the very lines of the source, each as often.
    [[nodiscard]] bool IsBalanced() const;

private:
    TextNumbers packs_;
    std::vector<TextNumbers::Number> ofSource_;
    std::vector<Entry> entries_;
};
