/// What this build says of itself.
#pragma once

#include "toolkit/core/Text.h"

namespace Build {
extern const StringView Version;
/// The system and processor that it is for, and the compiler.
extern const StringView TypeCompil;
/// Time of the last commit, or SOURCE_DATE_EPOCH; with no-break spaces so that a tooltip keeps it on one line.
extern const StringView Stamp;
} // namespace Build
