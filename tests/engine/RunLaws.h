/// A run, and what holds for every one over two accepted texts.
#pragma once

#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <utility>

/// All that a run gives.
struct Outcome {
    String text;
    std::vector<Int64> modelMarks, resultMarks;
    /// Message and explanation of each report.
    std::vector<std::pair<String, String>> reports;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

inline Outcome RunEngine(StringView model, StringView source, const FolderItem& dossier)
{
    Outcome outcome;
    SceneryTexts texts{String(model), String(source), {}, {}, {}};
    CreerSpack(texts, dossier, [&outcome](const String& message, const String& explanation) {
        outcome.reports.emplace_back(message, explanation);
    });
    EXPECT_TRUE(texts.TextModel == model && texts.TextSrcSpack == source) << "a run changed what it only reads";
    outcome.text = std::move(texts.TextDestSpack);
    outcome.modelMarks = std::move(texts.CoulModSpack);
    outcome.resultMarks = std::move(texts.CoulDestSpack);
    return outcome;
}

/// The reordering once more, as slow and as plain as can be: arrays that are searched from end to end.
Outcome RunNaively(StringView model, StringView source, const std::vector<String>& folders);

/// The lines from number `first` on without regard to their order and case; the last line end begins no other line.
inline std::multiset<String> BagOfLines(StringView text, std::size_t first = 0)
{
    if (text.ends_with(U'\n')) text.remove_suffix(1);
    std::multiset<String> bag;
    const std::vector<StringView> lines = Split(text, U"\n");
    for (const StringView line : std::span(lines).subspan(first))
        bag.insert(FoldCase(line));
    return bag;
}

inline void ExpectLineStarts(StringView text, const std::vector<Int64>& marks)
{
    EXPECT_TRUE(std::ranges::adjacent_find(marks, std::greater_equal<>()) == marks.end());
    for (const Int64 mark : marks)
        EXPECT_TRUE(mark > 0 && mark < std::ssize(text) && Middle(text, mark - 1, 1) == U"\n");
}

/// Runs the engine and the naive one. `folders` are the names of those in `dossier`, as the program compares them.
inline Outcome ExpectLawfulRun(StringView model, StringView source, const FolderItem& dossier,
                               const std::vector<String>& folders)
{
    Outcome outcome = RunEngine(model, source, dossier);
    EXPECT_EQ(outcome, RunNaively(model, source, folders));
    ExpectLineStarts(model, outcome.modelMarks);
    if (outcome.text == ErrorMarker) return outcome;

    ExpectLineStarts(outcome.text, outcome.resultMarks);
    const std::multiset<String> before = BagOfLines(source.substr(0, source.find_last_not_of(U'\n') + 1));
    const std::multiset<String> after = BagOfLines(outcome.text);
    for (const String& line : BagOfLines(outcome.text, HeaderLines))
        EXPECT_TRUE(line.empty() || before.contains(line)) << "a line made up";
    for (const String& line : BagOfLines(source, HeaderLines))
        EXPECT_TRUE(line.empty() || after.contains(line)) << "a line lost";
    const bool told = std::ranges::any_of(
        outcome.reports, [](const auto& report) { return report.first == Localisation::Txt_ProblemCompInitFinal(); });
    EXPECT_EQ(before != after, told);
    return outcome;
}
