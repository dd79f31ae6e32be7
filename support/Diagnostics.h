/// Messages about faults that only the program's authors can mend.
#pragma once

#include "toolkit/core/Text.h"

/// What a message for the authors begins with.
inline constexpr StringView ContactAuthors = U"Error ! Please contact the authors.";

/// Shows "Error !", the request to contact the authors, and `what`: the routine and what it found.
void TellAuthors(StringView what);

/// The same in its short form: `ContactAuthors`, and `what` on the next line.
void TellAuthorsShortly(StringView what);
