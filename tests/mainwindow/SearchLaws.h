/// What holds for every search.
#pragma once

#include "mainwindow/Searching.h"

#include <algorithm>
#include <gtest/gtest.h>

inline void ExpectLawfulSearches(StringView text, StringView word, const Selection& selection)
{
    std::vector<Int64> places;
    for (Int64 at = 0; !word.empty() && at + std::ssize(word) <= std::ssize(text); ++at)
        if (SameText(Middle(text, at, std::ssize(word)), word)) places.push_back(at);
    const auto expect = [&](const SearchResult& result, Int64 limit, bool forward, const Selection& none) {
        if (places.empty()) {
            EXPECT_TRUE(result.outcome == SearchOutcome::NotFound && result.selection == none && !result.wraps);
            return;
        }
        const auto behind = std::ranges::lower_bound(places, limit);
        const bool wraps = behind == (forward ? places.end() : places.begin());
        const auto place = forward ? (wraps ? places.begin() : behind) : std::prev(wraps ? places.end() : behind);
        const Selection match{*place, std::ssize(word)};
        EXPECT_EQ(result.selection, match);
        EXPECT_EQ(result.outcome, match == selection ? SearchOutcome::SameMatch : SearchOutcome::Match);
        EXPECT_EQ(result.wraps, wraps);
    };
    const Int64 end = selection.start + selection.length;
    expect(SearchNext(text, word, selection), std::max(end - 1, Int64{0}), true, {0, 0});
    expect(SearchBeyond(text, word, selection, true), end, true, selection);
    expect(SearchBeyond(text, word, selection, false), selection.start, false, selection);
}
