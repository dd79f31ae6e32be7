#include "toolkit/ColorRuns.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr ColorGroup red{0xFF0000}, green{0x00C800}, orange{0xFF7F00};

/// One letter for each character of a text of 10: its colour, or "." where there is none.
std::string Picture(std::span<const ColorSpan> runs)
{
    std::string picture(10, '.');
    for (const ColorSpan& run : runs)
        for (Int64 i = run.start; i < run.start + run.length; ++i)
            picture.at(static_cast<std::size_t>(i)) = run.color == red ? 'r' : run.color == green ? 'g' : 'o';
    return picture;
}

TEST(ColorRuns, LaterSpansWin)
{
    const std::tuple<const char*, std::vector<ColorSpan>, const char*, std::size_t> rows[] = {
        {"no span leaves the text black", {}, "..........", 0},
        {"a keyword shows within a marked line", {{0, 9, orange}, {2, 3, green}}, "oogggoooo.", 3},
        {"a mark given last hides the keyword", {{2, 3, green}, {0, 9, orange}}, "ooooooooo.", 1},
        {"spans that follow each other keep apart", {{5, 2, red}, {3, 2, green}}, "...ggrr...", 2},
        {"a span shows between two others", {{0, 10, orange}, {1, 2, red}, {6, 2, green}}, "orroooggoo", 5},
        {"of equal spans the last wins", {{1, 4, red}, {1, 4, green}}, ".gggg.....", 1},
        {"no colour outside", {{-3, 5, red}, {8, 50, green}, {10, 1, red}, {99, 1, red}}, "rr......gg", 2},
        {"a length that overflows ends with the text", {{4, INT64_MAX, red}}, "....rrrrrr", 1},
        {"empty and negative lengths colour nothing", {{4, 0, red}, {5, -3, green}}, "..........", 0},
    };
    for (const auto& [name, spans, picture, count] : rows) {
        const std::vector<ColorSpan> runs = ColorRuns(spans, 10);
        EXPECT_EQ(Picture(runs), picture) << name;
        EXPECT_EQ(runs.size(), count) << name;
    }
}

TEST(ColorRuns, AgreeWithPaintingOneAfterTheOther)
{
    std::mt19937 random(7);
    const auto upTo = [&random](unsigned n) { return static_cast<Int64>(random() % n); };
    for (int round = 0; round < 2000; ++round) {
        std::vector<ColorSpan> spans;
        for (Int64 n = upTo(7); n > 0; --n) {
            const Int64 start = upTo(10);
            spans.push_back(
                {start, upTo(static_cast<unsigned>(11 - start)), std::array{red, green, orange}[random() % 3]});
        }
        ASSERT_EQ(Picture(ColorRuns(spans, 10)), Picture(spans)) << "round " << round;
    }
}

} // namespace
