#include "support/TextHelpers.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>
#include <random>

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

/// Grows a window byte by byte while it is valid text; what it held before a bad byte is kept, the bad byte is not.
Bytes KeptByAGrowingWindow(const Bytes& text)
{
    Bytes kept;
    std::size_t start = 0, length = 1;
    const auto isValid = [&] { return Encodings::UTF8.IsValidData(std::string_view(text).substr(start, length)); };
    while (start + length < text.size()) {
        if (isValid()) {
            ++length;
            continue;
        }
        if (length != 1) kept += text.substr(start, length - 1);
        start += length;
        length = 1;
    }
    if (isValid()) return kept + text.substr(start, length);
    return length != 1 ? kept + text.substr(start, length - 1) : kept;
}

TEST(NettoiBadEncod, KeepsWhatAGrowingWindowWouldKeepInOnePass)
{
    // Few different bytes, so that whole characters, halves of them and strays all come up, at both ends too.
    const Bytes bytes("a\0\n\x7F\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xED\xA0\xFF\xC0", 17);
    std::mt19937 random(20240225);
    for (int round = 0; round < 20000; ++round) {
        Bytes text(random() % 24, '\0');
        for (char& byte : text)
            byte = bytes[random() % bytes.size()];
        ASSERT_EQ(Fncts::NettoiBadEncod(text, Encodings::UTF8), KeptByAGrowingWindow(text)) << round;
    }
    const Bytes ascii(std::size_t{10} << 20, 'a');
    EXPECT_EQ(Fncts::NettoiBadEncod(ascii + '\xFF', Encodings::UTF8), ascii);
}

TEST(MenuLabEt, DoublesAmpersandsAndBack)
{
    const Probe probe;
    EXPECT_EQ(Fncts::MenuLabEt(U"a&b&&", true, 3), U"a&&b&&&&");
    EXPECT_EQ(Fncts::MenuLabEt(U"a&&b&&&", false, 0), U"a&b&&");
    EXPECT_EQ(Fncts::MenuLabEt(U"a&&b", false, 2), U"a&&b") << "labels of kind 2 keep pairs";
    EXPECT_TRUE(probe.Asked.empty());
    EXPECT_EQ(Fncts::MenuLabEt(U"a&b", true, 4), U"a&b");
    EXPECT_EQ(probe.Asked, std::vector<String>{U"Error !\nPlease contact the authors.\nMenuLabEt, CeTypObj = 4"});
}

} // namespace
