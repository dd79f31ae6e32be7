/// What the status bar says of a text and of a run.
#pragma once

#include "toolkit/core/Exceptions.h"

/// How many lines a text has, and how many of them are enabled packs, disabled packs, and marked.
struct LineCounts {
    Int64 lines = 0, enabled = 0, disabled = 0, marked = 0;
};

/// "12 lines": the number, and the one of two forms "line|lines" that goes with it.
String Counted(Int64 number, StringView forms);

/// What is told of a marked line: "unmatched".
String Unmatched();

/// "Line 3, unmatched · 12 lines, 7 enabled, 2 disabled, 1 unmatched", the first only of a line that is `marked`.
String StatusSentence(Int64 line, bool marked, const LineCounts& counts);

/// A heading with items in lines of their own, "Twice:\n - Alps", as "Twice: Alps"; of more than three items the first.
String OnOneLine(StringView section);

/// Why a fetch failed, in the user's language where that is ours to say.
String WhyNoAnswer(const RuntimeException& error);
