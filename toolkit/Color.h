/// Colours of texts and backgrounds.
#pragma once

#include "toolkit/core/Text.h"

/// A fixed colour, 0xRRGGBB, the same in a light and in a dark appearance.
struct ColorGroup {
    std::uint32_t rgb = 0x000000;
    bool operator==(const ColorGroup&) const = default;
};

/// A colour for `length` characters from offset `start` on.
struct ColorSpan {
    Int64 start, length;
    ColorGroup color;
    bool operator==(const ColorSpan&) const = default;
};
