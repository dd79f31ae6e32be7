/// Sorting of many texts.
#pragma once

#include "toolkit/core/Text.h"

/// The indices of the texts in ascending order of their characters, case ignored. Equal texts keep their order.
///
/// It compares a few characters of each text at a time, kept beside its index, and looks into the texts again only
/// where those are equal: with the long common beginnings of scenery lines several times faster than `std::sort`.
std::vector<std::size_t> SortedOrder(std::span<const StringView> texts);
