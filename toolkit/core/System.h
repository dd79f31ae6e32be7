/// The platform's clock and its translations.
#pragma once

#include "toolkit/core/Text.h"

namespace System {
/// Sixtieths of a second since some moment in the past; never goes back.
Int64 Ticks();
} // namespace System

/// A moment as the clocks of the user's place show it.
struct DateTime {
    int Year, Month, Day, Hour, Minute, Second;
    static DateTime Now();
};

/// The first language of the user ("de", "pt") that the program speaks, or "fr", that of the default texts.
String UserLanguage();

/// The text for `key` in `language` ("de", "pt"), where an empty language means that of the user; `defaultText` where
/// the program has no translation.
///
/// Translations are id-based Qt files "translations/tarnivel_<language>.qm" in the resource folder, whose ids are the
/// keys.
String SystemGetLocalizedString(StringView key, StringView defaultText, StringView language);
