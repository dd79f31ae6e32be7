/// What this build says of itself.
#pragma once

#include "toolkit/core/Text.h"

namespace Build {
inline constexpr StringView Version = U"1.1.3";
/// What the program was built for and with.
inline constexpr StringView TypeCompil = U"Mac INTEL 64-bit (Lumbra2023r4)";
/// Date and time of the build, with no-break spaces so that a tooltip keeps them on one line.
inline constexpr StringView Stamp = U"2024-02-25\u00A010:51\u00A0CET";
} // namespace Build
