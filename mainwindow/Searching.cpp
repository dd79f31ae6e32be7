#include "mainwindow/Searching.h"

SearchResult SearchNext(StringView text, StringView word, const Selection& selection)
{
    const Int64 end = selection.start + selection.length;
    Int64 found = IndexOf(text, word, end - 1);
    const bool wraps = found < 0;
    if (wraps) found = IndexOf(text, word);
    if (found < 0) return {SearchOutcome::NotFound, {0, 0}};
    const Selection match{found, std::ssize(word)};
    return {match == selection ? SearchOutcome::SameMatch : SearchOutcome::Match, match, wraps};
}

SearchResult SearchBeyond(StringView text, StringView word, const Selection& selection, bool forward)
{
    Int64 found = -1, last = -1;
    const Int64 behind = selection.start + selection.length;
    if (forward) {
        found = IndexOf(text, word, behind);
    } else {
        for (Int64 at = IndexOf(text, word); at >= 0; at = IndexOf(text, word, at + 1)) {
            last = at;
            if (at < selection.start) found = at;
        }
    }
    const bool wraps = found < 0;
    if (wraps) found = forward ? IndexOf(text, word) : last;
    if (found < 0) return {SearchOutcome::NotFound, selection};
    const Selection match{found, std::ssize(word)};
    return {match == selection ? SearchOutcome::SameMatch : SearchOutcome::Match, match, wraps};
}
