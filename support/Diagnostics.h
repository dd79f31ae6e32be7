/// Messages about faults that only the program's authors can mend.
#pragma once

#include "toolkit/core/Text.h"

/// Shows "Error !", the request to contact the authors, and `what`: the routine and what it found.
void TellAuthors(StringView what);

/// The same in its short form: "Error ! Please contact the authors." and `what` on the next line.
void TellAuthorsShortly(StringView what);
