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
    EXPECT_EQ(StatusSentence(12, true, {.lines = 612, .enabled = 580, .disabled = 1, .marked = 0}),
              U"Ligne 12, sans équivalent · 612 lignes, 580 activées, 1 désactivée, 0 sans équivalent");
}

TEST(ArchiveNames, TheMomentStandsBeforeTheExtension)
{
    const DateTime moment{2024, 3, 5, 9, 5, 2};
    EXPECT_EQ(ArchiveName(U"scenery_packs.ini", U".ini", moment), U"scenery_packs_2024-03-05_09'05'02.ini");
    EXPECT_EQ(ArchiveName(U"e\u0301.e\u0301", U".e\u0301", {12, 12, 31, 23, 59, 59}), U"é_0012-12-31_23'59'59.é");
}

TEST(Toggling, OneWayAlone)
{
    const StringView text = U"I\nSCENERY_PACK A\nscenery_pack_disabled B\n";
    const Selection all{2, std::ssize(text) - 2};
    EXPECT_EQ(Toggle(text, all, ToggleMode::Enable)->text, U"I\nSCENERY_PACK A\nSCENERY_PACK B\n");
    EXPECT_EQ(Toggle(text, all, ToggleMode::Disable)->text, U"I\nSCENERY_PACK_DISABLED A\nscenery_pack_disabled B\n");
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
