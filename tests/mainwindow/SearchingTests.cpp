#include "mainwindow/Searching.h"

#include <gtest/gtest.h>

namespace {

TEST(Searching, TheNextMatchOrTheFirst)
{
    struct Row {
        const char* name;
        StringView text, word;
        Selection selection;
        SearchOutcome outcome;
        Selection match;
    };
    constexpr auto none = SearchOutcome::NotFound, same = SearchOutcome::SameMatch, match = SearchOutcome::Match;
    const Row rows[] = {
        {"from the beginning", U"abcab", U"AB", {0, 0}, match, {0, 2}},
        {"behind the selection", U"abcab", U"ab", {0, 2}, match, {3, 2}},
        {"wraps round", U"abcab", U"ab", {3, 2}, match, {0, 2}},
        {"the only match is found again", U"xab", U"ab", {1, 2}, same, {1, 2}},
        {"a single character never advances", U"aaa", U"a", {0, 1}, same, {0, 1}},
        {"a match may overlap the last one by a character", U"ababa", U"aba", {0, 3}, match, {2, 3}},
        {"the character before a caret counts", U"ab", U"ab", {1, 0}, match, {0, 2}},
        {"from the end of the text", U"abc", U"a", {3, 0}, match, {0, 1}},
        {"characters beyond 16 bits", U"😀é😀É", U"é", {1, 1}, same, {1, 1}},
        {"not there", U"abc", U"d", {1, 1}, none, {0, 0}},
        {"longer than the text", U"abc", U"abcd", {0, 0}, none, {0, 0}},
        {"an empty text", U"", U"a", {0, 0}, none, {0, 0}},
    };
    for (const Row& row : rows) {
        const SearchResult result = SearchNext(row.text, row.word, row.selection);
        EXPECT_EQ(result.outcome, row.outcome) << row.name;
        EXPECT_EQ(result.selection, row.match) << row.name;
    }
}

TEST(Searching, LongTextsAreSearchedToTheirEnd)
{
    const String text = String(100'000, U'a') + U"b";
    EXPECT_EQ(SearchNext(text, U"b", {40'000, 5}).selection, (Selection{100'000, 1}));
}

} // namespace
