#include "support/TextHelpers.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

TEST(FracTexte, CutsAtPlaceholdersAndReportsAMissingPart)
{
    const Probe probe;
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b¿%", 1), U"a");
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b¿%", 3), U"");
    EXPECT_TRUE(probe.Asked.empty());
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b", 0), U"");
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b", 3), U"");
    EXPECT_EQ(probe.Asked.front(), U"Error ! Please contact the authors.\nFracTexte. Partie = 0\n \na¿%b");
    EXPECT_EQ(probe.Asked.size(), 2U);
}

TEST(NettoiBadEncod, KeepsTheBytesThatStandAlone)
{
    EXPECT_EQ(Fncts::NettoiBadEncod("a\xC3\xA9\xE2\x82\n\xFF\x7F", Encodings::UTF8), "a\n\x7F");
    const Bytes ascii(std::size_t{10} << 20, 'a');
    EXPECT_EQ(Fncts::NettoiBadEncod(ascii + '\xFF', Encodings::UTF8), ascii) << "in one pass";
}

} // namespace
