#include "mainwindow/Colouring.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorGroup red{0xFF0000}, green{0x00C800};

TEST(Colouring, KeywordsAnywhereInALine)
{
    using Spans = std::vector<ColorSpan>;
    const std::tuple<const char*, StringView, Spans> rows[] = {
        {"an empty line has no colour", U"", {}},
        {"the header is no keyword", U"SCENERY", {}},
        {"an enabled pack", U"SCENERY_PACK a", {{0, 13, green}}},
        {"a disabled pack", U"SCENERY_PACK_DISABLED b", {{0, 22, red}}},
        {"without its blank it is none", U"SCENERY_PACK", {}},
        {"in any case, one behind the other",
         U"😀 scenery_pack_disabled SCENERY_PACK ",
         {{2, 22, red}, {24, 13, green}}},
    };
    for (const auto& [name, line, spans] : rows)
        EXPECT_EQ(ColourKeywords(line), spans) << name;
}

} // namespace
