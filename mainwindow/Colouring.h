/// Which characters of a scenery text are shown in which colour.
#pragma once

#include "toolkit/Color.h"

#include <span>
#include <vector>

namespace Colouring {
inline constexpr ColorGroup MarkedLine{0xFF7F00};
inline constexpr ColorGroup DisabledKeyword{0xFF0000};
inline constexpr ColorGroup EnabledKeyword{0x00C800};
} // namespace Colouring

/// A mark that points to no whole line: its offset, and the offset behind the line end that follows it (0 when none
/// follows, -1 when the mark lies at or behind the end of the text).
struct BadMark {
    Int64 jNbre, kNbre;
    bool operator==(const BadMark&) const = default;
};

struct Colours {
    /// In order of painting: a later span covers an earlier one.
    std::vector<ColorSpan> spans;
    std::vector<BadMark> badMarks;
};

/// Orange for the line at each mark, from the mark through its line end; above that, red and green for the keywords
/// with their trailing blank, wherever they stand and in whatever case. Marks are character offsets of line starts.
Colours ColourText(StringView text, std::span<const Int64> marks);
