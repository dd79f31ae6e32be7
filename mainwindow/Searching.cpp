#include "mainwindow/Searching.h"

SearchResult SearchNext(StringView text, StringView word, const Selection& selection)
{
    const Int64 end = selection.start + selection.length;
    Int64 found = IndexOf(text, word, end - 1);
    if (found < 0 && end > 0) found = IndexOf(text, word);
    if (found < 0) return {SearchOutcome::NotFound, {0, 0}};
    const Selection match{found, std::ssize(word)};
    return {match == selection ? SearchOutcome::SameMatch : SearchOutcome::Match, match};
}
