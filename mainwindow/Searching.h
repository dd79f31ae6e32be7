/// Finding the next occurrence of a text.
#pragma once

#include "mainwindow/Toggling.h"

enum class SearchOutcome {
    NotFound,
    /// The match is what was selected already: there is no other.
    SameMatch,
    Match,
};

struct SearchResult {
    SearchOutcome outcome;
    /// The match; where there is none, what is to be selected instead.
    Selection selection;
    /// The match lies beyond an end of the text, at which the search went on from the other end.
    bool wraps = false;
};

/// The next `word` in the text, wrapping round at its end; case is ignored and blanks count.
///
/// The search begins at the last character of the selection (before a caret), so that a match of one character is found
/// again and a longer one is passed. With no match it gives a caret at offset 0.
SearchResult SearchNext(StringView text, StringView word, const Selection& selection);

/// The same behind the selection, or the last one that begins before it, so that a match of one character is passed
/// too. With no match the selection stays.
SearchResult SearchBeyond(StringView text, StringView word, const Selection& selection, bool forward);
