/// What holds for every run over two accepted texts.
#pragma once

#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "tests/engine/Outcome.h"

#include <algorithm>
#include <set>

/// The lines without regard to their order and case; the last line end begins no other line.
inline std::multiset<String> BagOfLines(StringView text)
{
    if (text.ends_with(U'\n')) text.remove_suffix(1);
    std::multiset<String> bag;
    for (const StringView line : Split(text, U"\n"))
        bag.insert(FoldCase(line));
    return bag;
}

/// The text behind the lines of its header, of which an accepted text may have more on the last one.
inline StringView BodyOf(StringView text)
{
    for (Int64 line = CountFields(TxtDebSpack, TxtEoF); line > 0; --line)
        text.remove_prefix(std::min(text.find(TxtEoF), text.size() - 1) + 1);
    return text;
}

inline void ExpectLineStarts(StringView text, const std::vector<Int64>& marks)
{
    for (std::size_t i = 0; i < marks.size(); ++i) {
        EXPECT_TRUE(marks[i] > (i > 0 ? marks[i - 1] : 0) && Middle(text, marks[i] - 1, 1) == U"\n");
        EXPECT_LT(marks[i], std::ssize(text));
    }
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
    for (const String& line : BagOfLines(BodyOf(outcome.text)))
        EXPECT_TRUE(line.empty() || before.contains(line)) << "a line made up";
    for (const String& line : BagOfLines(BodyOf(source)))
        EXPECT_TRUE(line.empty() || after.contains(line)) << "a line lost";
    const bool told = std::ranges::any_of(
        outcome.reports, [](const auto& report) { return report.first == Localisation::Txt_ProblemCompInitFinal(); });
    EXPECT_EQ(before != after, told);
    return outcome;
}
