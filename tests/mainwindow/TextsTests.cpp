#include "mainwindow/ArchiveName.h"
#include "mainwindow/Colouring.h"
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

TEST(ArchiveNames, TheMomentStandsBeforeTheExtension)
{
    EXPECT_EQ(ArchiveName(U"e\u0301.e\u0301", U".e\u0301", {12, 1, 2, 3, 4, 59}), U"é_0012-01-02_03'04'59.é");
}

TEST(Sentences, NameTheFirstItemsOfASection)
{
    EXPECT_EQ(OnOneLine(U"Twice:\n - a"), U"Twice: a");
    EXPECT_EQ(OnOneLine(U"Twice:\n - a\n - b\n - c\n - d"), U"Twice: a, b, c…");
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
