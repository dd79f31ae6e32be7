#include "mainwindow/ArchiveName.h"
#include "mainwindow/Colouring.h"
#include "mainwindow/ReportSeries.h"
#include "mainwindow/Sentences.h"
#include "tests/mainwindow/SearchLaws.h"
#include "tests/mainwindow/ToggleLaws.h"
#include "toolkit/core/TextEncoding.h"

#include <random>

namespace {

TEST(Colouring, KeywordsAnywhereInALine)
{
    constexpr ColorGroup red{0xFF0000}, green{0x00C800};
    const std::pair<StringView, std::vector<ColorSpan>> rows[] = {
        {U"", {}},
        {U"SCENERY_PACK a", {{0, 13, green}}},
        {U"SCENERY_PACK", {}},
        {U"😀 scenery_pack_disabled SCENERY_PACK ", {{2, 22, red}, {24, 13, green}}},
    };
    for (const auto& [line, spans] : rows)
        EXPECT_EQ(ColourKeywords(line), spans) << Encodings::UTF8.Encode(line);
}

TEST(ReportSeries, FromTheFourthOfItsKindOnTheyAreGathered)
{
    String shown;
    ReportSeries series([&](const String& message, const String& more) { shown += message + U"|" + more + U"\n\n"; });
    series.Finish();
    for (const StringView line : {U"1", U"2", U"3", U"4", U"5"}) {
        series.Add(U"twice", String(line));
        if (line < StringView(U"5")) series.Add(U"both", String(line));
    }
    series.Add(U"folders", {});
    series.Finish();
    EXPECT_EQ(shown, U"twice|1\n\nboth|1\n\ntwice|2\n\nboth|2\n\ntwice|3\n\nboth|3\n\nfolders|\n\n"
                     U"twice|4\n5\n\nboth\n4\n\n");
    EXPECT_EQ(series.All(), U"twice\n1\n2\n3\n4\n5\n\nboth\n1\n2\n3\n4\n\nfolders");
    EXPECT_EQ(series.Count(), 10);
}

TEST(Sentences, ANumberHasItsFormOfTheWord)
{
    EXPECT_EQ(StatusSentence(12, {.lines = 612, .enabled = 580, .disabled = 1, .marked = 0}),
              U"Ligne 12 · 612 lignes, 580 activées, 1 désactivée, 0 sans équivalent");
}

TEST(ArchiveNames, TheMomentStandsBeforeTheExtension)
{
    const DateTime moment{2024, 3, 5, 9, 5, 2};
    EXPECT_EQ(ArchiveName(U"scenery_packs.ini", U".ini", moment), U"scenery_packs_2024-03-05_09'05'02.ini");
    EXPECT_EQ(ArchiveName(U"e\u0301.e\u0301", U".e\u0301", {12, 12, 31, 23, 59, 59}), U"é_0012-12-31_23'59'59.é");
}

TEST(Toggling, LinesInTheSelectionChange)
{
    struct Row {
        const char* name;
        ToggleMode mode;
        StringView before, after;
    };
    constexpr ToggleMode invert = ToggleMode::Invert;
    const Row rows[] = {
        {"a caret stands for its line, which is selected then", invert, U"I\nSCENERY_PACK A|/\nx",
         U"I\n[SCENERY_PACK_DISABLED A/]\nx"},
        {"every line flips from its own state", invert, U"I\n[SCENERY_PACK é\nSCENERY_PACK_DISABLED 😀\n]",
         U"I\n[SCENERY_PACK_DISABLED é\nSCENERY_PACK 😀\n]"},
        {"forced on", ToggleMode::Enable, U"I\n[SCENERY_PACK A\nSCENERY_PACK_DISABLED B]\n",
         U"I\n[SCENERY_PACK A\nSCENERY_PACK B]\n"},
        {"forced off", ToggleMode::Disable, U"I\n[SCENERY_PACK A\nSCENERY_PACK_DISABLED B]\n",
         U"I\n[SCENERY_PACK_DISABLED A\nSCENERY_PACK_DISABLED B]\n"},
        {"a line selected from its middle or cut in its keyword stays", invert,
         U"I\nSCENERY[_PACK A\nSCENERY_P]ACK B\n", U"I\nSCENERY[_PACK A\nSCENERY_P]ACK B\n"},
        {"the last line without a line end loses its last character in the selection", invert, U"I\nSCENERY_PACK A|b",
         U"I\n[SCENERY_PACK_DISABLED A]b"},
        {"small letters match, and come out in capitals", invert, U"I\n|scenery_pack x\r\n",
         U"I\n[SCENERY_PACK_DISABLED x\r]\n"},
        {"nothing to select", invert, U"I\n|\nx", U""},
        {"nothing behind the last line end", invert, U"I\n|", U""},
    };
    // "[" and "]" stand for the ends of the selection, "|" for the caret.
    const auto read = [](StringView marked) {
        const std::size_t start = std::min(marked.find_first_of(U"[|"), marked.size()), end = marked.find(U']');
        AfterToggle found{String(marked), {static_cast<Int64>(start), 0}};
        if (end != marked.npos) found.selection.length = static_cast<Int64>(end - start - 1);
        std::erase_if(found.text, [](char32_t c) { return StringView(U"[]|").find(c) != StringView::npos; });
        return found;
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AfterToggle before = read(row.before), after = read(row.after);
        const std::optional<AfterToggle> toggled = Toggle(before.text, before.selection, row.mode);
        EXPECT_EQ(toggled.has_value(), !row.after.empty());
        EXPECT_EQ(toggled ? toggled->text : String(), after.text);
        EXPECT_EQ(toggled ? toggled->selection : Selection(), after.selection);
    }
}

TEST(RandomTexts, AreSearchedAndToggledByTheLaws)
{
    std::mt19937 engine(20240225); // NOLINT(cert-msc51-cpp): a failure must come again
    const auto roll = [&engine](Int64 most) { return std::uniform_int_distribution<Int64>(0, most)(engine); };
    const std::vector<StringView> pieces =
        Split(U"SCENERY_PACK |SCENERY_PACK_DISABLED |scenery_pack |a|aA|é|É|😀|\r|\n|\n|\n", U"|");
    for (int round = 0; round < 5000 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        String text;
        for (Int64 count = roll(9); count > 0; --count)
            text += pieces[static_cast<std::size_t>(roll(std::ssize(pieces) - 1))];
        const Int64 start = roll(std::ssize(text));
        const Selection selection{start, roll(1) * roll(std::ssize(text) - start)};
        ExpectLawfulToggles(text, selection);
        ExpectLawfulSearches(text, Middle(text, roll(std::ssize(text)), roll(4)), selection);
        ExpectLawfulSearches(text, U"É", selection);
    }
    ExpectLawfulSearches(String(100'000, U'a') + U"b", U"b", {40'000, 5});
}

} // namespace
