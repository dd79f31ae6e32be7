/// What the source holds against what the result has got.
#pragma once

#include "engine/SceneryText.h"

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

/// Counts the lines of the source and of the result, so that one look tells all about a line and its twin.
///
/// The result begins with the header.
class Ledger {
public:
    Ledger(std::span<const SceneryLine> model, std::span<const SceneryLine> source);

    /// The entry of line `index` of the model.
    Entry& OfModel(std::size_t index) { return entries_[numbers_[index]]; }
    /// The entry of line `index` of the source.
    Entry& OfSource(std::size_t index) { return entries_[numbers_[modelLines_ + index]]; }

    /// Whether the result holds the very lines of the source, each as often.
    [[nodiscard]] bool IsBalanced() const;

private:
    std::size_t modelLines_;
    /// For each line of the model, then of the source, which entry is its own.
    std::vector<std::size_t> numbers_;
    std::vector<Entry> entries_;
};
