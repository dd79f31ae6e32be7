#include "app/App.h"
#include "app/WinAide.h"
#include "localisation/Localisation.h"
#include "support/Fncts.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

struct Help : testing::Test {
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
    ASSERT_EQ(probe.Links.size(), 2U);
    EXPECT_EQ(probe.Links[0], U"https://tarnivel.example");
    EXPECT_TRUE(probe.Links[1].starts_with(
        U"mailto:contact%40tarnivel.example?Subject=A%20propos%20de%20Tarnivel%20v.1.1.3%20"));
    EXPECT_TRUE(probe.Links[1].ends_with(U"%C2%A0UTC"));
    EXPECT_TRUE(window.TexteInfo.Text().starts_with(Localisation::Infos_Texte()));
}

TEST_F(Help, IsClosedByItsButtonAlone)
{
    Fncts::DrapMenu = true;
    window.Show();
    EXPECT_FALSE(Fncts::DrapMenu);
    EXPECT_TRUE(window.CancelClosing(true));
    window.Close();
    EXPECT_EQ(probe.Beeps, 2);
    window.BoutonOk_Pressed();
    EXPECT_FALSE(window.Visible());
    EXPECT_TRUE(Fncts::DrapMenu);
}

} // namespace
