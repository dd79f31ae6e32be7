#include "tests/specialA/NaiveTreatment.h"

#include <random>

namespace {

using Rows = std::vector<ReplacementRow>;

TEST(Treatment, StaysWithinItsMeans)
{
    const Treatment grown = *Treat(String(100, U'a') + U"b", Rows{{U"a", U"b", String(1'000'000, U'x')}});
    EXPECT_EQ(grown.dest2, std::nullopt) << "a variant of 100,000,000";
    EXPECT_EQ(grown.dest1, String(101, U'b'));
    const String periodic(200'000, U'a');
    EXPECT_EQ(Treat(periodic, Rows{{String(100'000, U'A') + U"b", U"", U""}})->dest1, periodic)
        << "found missing without a look at each pair of places";
    EXPECT_FALSE(Treat(U"a", Rows{{U"a", U"b", U"c"}}, [](Int64 done, Int64) { return done < 2; })) << "stopped";
}

TEST(Treatment, RandomTextsAsTheNaiveWay)
{
    std::mt19937 engine(20240225); // NOLINT(cert-msc51-cpp): a failure must come again
    const auto roll = [&engine](std::size_t sides) { return engine() % sides; };
    const auto text = [&](std::size_t mostCharacters) {
        // Few letters, so that matches are many; the last ones seldom, so that texts can be cut between them.
        static constexpr StringView letters = U"aAabBbéÉßσςжЖ\U00010428\U00010400\n z";
        String made;
        for (std::size_t length = roll(mostCharacters + 1); length > 0; --length)
            made += letters[roll(roll(4) == 0 ? letters.size() : 6)];
        return made;
    };
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const String original = text(round % 20 == 0 ? 30'000 : 60);
        Rows rows;
        for (std::size_t count = roll(6); count > 0; --count)
            rows.push_back({text(4), text(3), text(5)});
        ExpectTreatedAsNaively(original, rows);
        ASSERT_FALSE(HasFailure());
    }
    // A piece of 8000 characters would end anywhere in the matches behind them.
    for (std::size_t before = 7995; before < 8005; ++before)
        ExpectTreatedAsNaively(String(before, U'x') + U"abcabcabc", Rows{{U"abc", U"1", U"cabc"}});
}

} // namespace
