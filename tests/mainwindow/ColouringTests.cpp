#include "mainwindow/Colouring.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorGroup orange{0xFF7F00}, red{0xFF0000}, green{0x00C800};

TEST(Colouring, SpansAndBadMarks)
{
    struct Row {
        const char* name;
        StringView text;
        std::vector<Int64> marks;
        std::vector<ColorSpan> spans;
        std::vector<BadMark> badMarks;
    };
    const Row rows[] = {
        {"an empty text has no colour", U"", {}, {}, {}},
        {"the header is no keyword", U"I\n1000 version\nSCENERY\n", {}, {}, {}},
        {"keywords take their trailing blank",
         U"SCENERY_PACK a\nSCENERY_PACK_DISABLED b\n",
         {},
         {{15, 22, red}, {0, 13, green}},
         {}},
        {"keywords ignore case and may stand anywhere", U"# scenery_pack SCENERY_PACK", {}, {{2, 13, green}}, {}},
        {"a mark runs through its line end, below the keyword",
         U"é😀\nSCENERY_PACK a\n",
         {3},
         {{3, 15, orange}, {3, 13, green}},
         {}},
        {"a mark in the middle of a line colours the rest of it", U"abc\n", {1}, {{1, 3, orange}}, {}},
        {"a last line without a line end can't be marked", U"a\nb", {2}, {}, {{2, 0}}},
        {"a mark behind the end is bad, the next one is not",
         U"a\n",
         {2, 99, 0},
         {{0, 2, orange}},
         {{2, -1}, {99, -1}}},
        {"a bad mark does not hide the keywords", U"SCENERY_PACK ", {13}, {{0, 13, green}}, {{13, -1}}},
    };
    for (const Row& row : rows) {
        const Colours colours = ColourText(row.text, row.marks);
        EXPECT_EQ(colours.spans, row.spans) << row.name;
        EXPECT_EQ(colours.badMarks, row.badMarks) << row.name;
    }
}

} // namespace
