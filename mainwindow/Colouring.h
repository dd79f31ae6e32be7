/// Which characters of a scenery text are shown in which colour.
#pragma once

#include "toolkit/TextDocument.h"

namespace Colouring {
inline constexpr ColorGroup MarkedLine{0xFF7F00};
inline constexpr ColorGroup DisabledKeyword{0xFF0000};
inline constexpr ColorGroup EnabledKeyword{0x00C800};
} // namespace Colouring

/// Red and green for the keywords of a line with their trailing blank, wherever they stand and in whatever case.
std::vector<ColorSpan> ColourKeywords(StringView line);

/// The colours of a scenery text: its keywords, and orange for the lines that are marked.
inline TextColors SceneryColours() { return {ColourKeywords, Colouring::MarkedLine}; }
