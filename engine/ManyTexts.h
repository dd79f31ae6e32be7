/// What is the same and what comes first among many texts; case doesn't count.
#pragma once

#include "toolkit/core/Text.h"

/// A number for each text, counted from 0 in the order in which they are first met: the same for the same text.
/// "b", "a", "B" gives 0, 1, 0.
std::vector<std::size_t> TextNumbers(std::span<const StringView> texts);

/// The indices of the texts in ascending order of their characters. Equal texts keep their order.
std::vector<std::size_t> SortedOrder(std::span<const StringView> texts);
