/// Sentences for the user that need no answer: what was done, and why something was not.
#pragma once

#include "toolkit/core/Text.h"

namespace Fncts {

/// Shows the sentence for a while in the status bar, below the window that the user works in, where a screen reader
/// reads it out too. The next one takes its place.
void Dire(StringView sentence);

/// Refuses what the user asked for: one beep, and the reason in a sentence.
void Refuser(StringView reason);

} // namespace Fncts
