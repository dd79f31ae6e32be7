/// Sorting of many texts.
#pragma once

#include "toolkit/core/Text.h"

/// The indices of the texts in ascending order of their characters, case ignored. Equal texts keep their order.
///
/// It reads a few characters of each text at a time and goes on only where those are equal, so that texts with long
/// common beginnings cost little more than others: 100,000 lines of packs in a tenth of the time of `std::sort`.
std::vector<std::size_t> SortedOrder(std::span<const StringView> texts);
