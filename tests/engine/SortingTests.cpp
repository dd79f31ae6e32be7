#include "engine/Sorting.h"

#include <gtest/gtest.h>

namespace {

TEST(Sorting, SortedOrder)
{
    struct Row {
        const char* name;
        std::vector<StringView> texts;
        std::vector<std::size_t> order;
    };
    const StringView nul(U"a\0", 2);
    const Row rows[] = {
        {"nothing", {}, {}},
        {"equal texts keep their order", {U"b", U"A", U"a", U"", U"B", U"a", U""}, {3, 6, 1, 2, 5, 0, 4}},
        {"a beginning comes first, even before a NUL", {U"ab", nul, U"a", U"aa"}, {2, 1, 3, 0}},
        {"differences behind many equal characters",
         {U"Custom Scenery/10/", U"custom scenery/10", U"CUSTOM SCENERY/1", U"Custom Scenery/09/zz"},
         {3, 2, 1, 0}},
        {"characters count in full, in the order of their numbers",
         {U"\U00010061", U"\u0161", U"a", U"\u2161", U"\uFF41", U"\u0160"},
         {2, 1, 5, 3, 4, 0}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SortedOrder(row.texts), row.order) << row.name;
}

} // namespace
