#include "mainwindow/Colouring.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorGroup orange{0xFF7F00}, red{0xFF0000}, green{0x00C800};

TEST(Colouring, SpansAndBadMarks)
{
    using Spans = std::vector<ColorSpan>;
    const std::tuple<const char*, StringView, std::vector<Int64>, Spans, std::vector<BadMark>> rows[] = {
        {"an empty text has no colour", U"", {}, {}, {}},
        {"the header is no keyword", U"I\n1000 version\nSCENERY\n", {}, {}, {}},
        {"keywords take a blank", U"SCENERY_PACK a\nSCENERY_PACK_DISABLED b", {}, {{15, 22, red}, {0, 13, green}}, {}},
        {"keywords ignore case and may stand anywhere", U"# scenery_pack SCENERY_PACK", {}, {{2, 13, green}}, {}},
        {"a mark takes its line end", U"é😀\nSCENERY_PACK a\n", {3}, {{3, 15, orange}, {3, 13, green}}, {}},
        {"a mark in the middle of a line colours the rest of it", U"abc\n", {1}, {{1, 3, orange}}, {}},
        {"a last line without a line end can't be marked", U"a\nb", {2}, {}, {{2, 0}}},
        {"a mark behind the end is bad, the next one not", U"a\n", {2, 99, 0}, {{0, 2, orange}}, {{2, -1}, {99, -1}}},
        {"a bad mark does not hide the keywords", U"SCENERY_PACK ", {13}, {{0, 13, green}}, {{13, -1}}},
    };
    for (const auto& [name, text, marks, spans, badMarks] : rows) {
        const Colours colours = ColourText(text, marks);
        EXPECT_EQ(colours.spans, spans) << name;
        EXPECT_EQ(colours.badMarks, badMarks) << name;
    }
}

} // namespace
