/// Overlapping colours made plain.
#pragma once

#include "toolkit/Color.h"

/// The stretches of a text of `length` characters in which one colour is to be seen, in order, none of them empty and
/// none overlapping another. Of spans that overlap the later one of the list wins; what lies outside the text is left
/// out. {0, 9, orange}, {2, 3, green} gives orange 0 to 2, green 2 to 5, orange 5 to 9.
std::vector<ColorSpan> ColorRuns(std::span<const ColorSpan> spans, Int64 length);
