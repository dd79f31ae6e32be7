/// Two variants of a text by a table of replacements.
#pragma once

#include "toolkit/core/Text.h"

#include <functional>

/// One row of the table: the searched text, and what stands in its place in each of the two variants.
struct ReplacementRow {
    String searched, replacement1, replacement2;
};

struct Treatment {
    /// A line for each row that searches for anything: a line end, then " • 3 x “text”". Those of texts that are not
    /// there come first.
    String report;
    /// Nothing for a variant that would grow too long.
    std::optional<String> dest1, dest2;

    /// Characters that a variant may have, or `MostGrowth` times those of the original where that is more.
    static constexpr Int64 MostCharacters = Int64{64} << 20, MostGrowth = 4;
};

/// Applies the rows in their order: each sees what the rows before it have put into its variant. Case is ignored, what
/// is replaced doesn't overlap, and an empty replacement deletes. The report counts in the original alone, where
/// matches may overlap: "aa" is found twice in "aaa". A row that searches for nothing is passed over.
///
/// `goesOn` is told often, in any unit, how much of the work is done; nothing comes back when it answers false.
std::optional<Treatment> Treat(StringView original, std::span<const ReplacementRow> rows,
                               const std::function<bool(Int64 done, Int64 total)>& goesOn = {});
