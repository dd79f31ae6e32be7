#include "app/App.h"
#include "app/WinAide.h"
#include "support/Fncts.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

class Help : public testing::Test {
protected:
    char program[8] = "tests", *argv[2] = {program, nullptr};
    int argc = 1;
    App app{argc, argv};
    Probe probe;
    WinAide window;
};

TEST_F(Help, LinksAreFollowed)
{
    window.Web2.Pressed();
    window.Email2.Pressed();
    EXPECT_EQ(probe.Links,
              (std::vector<String>{
                  U"https://tarnivel.example",
                  U"mailto:contact%40tarnivel.example?Subject=A%20propos%20de%20Tarnivel%20v.1.1.3%20Mac%20"
                  U"INTEL%2064-bit%20%28Lumbra2023r4%29%20-%202024-02-25%C2%A010%3A51%C2%A0CET",
              }));
}

TEST_F(Help, ItsButtonAloneClosesIt)
{
    for (const bool before : {true, false}) {
        Fncts::DrapMenu = before;
        probe.Beeps = 0;
        window.Show();
        EXPECT_FALSE(Fncts::DrapMenu);
        window.Close();
        EXPECT_TRUE(window.CancelClosing(true));
        EXPECT_TRUE(window.Visible());
        EXPECT_EQ(probe.Beeps, 2);
        window.BoutonOk_Pressed();
        EXPECT_FALSE(window.Visible());
        EXPECT_EQ(Fncts::DrapMenu, before);
    }
}

} // namespace
