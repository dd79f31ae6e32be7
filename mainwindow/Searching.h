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
    /// The match, or a caret at offset 0.
    Selection selection;
};

/// The next `word` in the text, wrapping round at its end; case is ignored and blanks count.
///
/// The search begins at the last character of the selection (before a caret), so that a match of one character is found
/// again and a longer one is passed.
SearchResult SearchNext(StringView text, StringView word, const Selection& selection);
