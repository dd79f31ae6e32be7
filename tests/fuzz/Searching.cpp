#include "mainwindow/Searching.h"

#include "tests/fuzz/Input.h"

#include <gtest/gtest.h>

namespace {

Int64 FindNaively(StringView text, StringView word, Int64 start)
{
    for (Int64 at = start; !word.empty() && at + std::ssize(word) <= std::ssize(text); ++at)
        if (SameText(Middle(text, at, std::ssize(word)), word)) return at;
    return -1;
}

} // namespace

void Fuzz(Input& input)
{
    const String text = input.Text();
    String word = input.Text();
    // A piece of the text itself is found more often than a word of its own.
    if (word.empty()) word = FoldCase(Middle(text, input.UpTo(std::ssize(text)), input.UpTo(std::ssize(text))));
    const Int64 start = input.UpTo(std::ssize(text)), end = start + input.UpTo(std::ssize(text) - start);

    Int64 found = FindNaively(text, word, end > 0 ? end - 1 : 0);
    if (found < 0) found = FindNaively(text, word, 0);
    const Selection selection{start, end - start}, match{found, std::ssize(word)};
    const SearchResult result = SearchNext(text, word, selection);
    EXPECT_EQ(result.selection, found < 0 ? (Selection{0, 0}) : match);
    EXPECT_EQ(result.outcome, found < 0            ? SearchOutcome::NotFound
                              : match == selection ? SearchOutcome::SameMatch
                                                   : SearchOutcome::Match);
}
