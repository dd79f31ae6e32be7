#include "app/App.h"
#include "app/WinAide.h"
#include "localisation/Localisation.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

TEST(Help, ItsLinksAreFollowed)
{
    char program[] = "tests", *argv[] = {program, nullptr};
    int argc = 1;
    const App app{argc, argv};
    const Probe probe;
    const WinAide window;
    window.Web2.Pressed();
    window.Email2.Pressed();
    ASSERT_EQ(probe.Links.size(), 2U);
    EXPECT_EQ(probe.Links[0], U"https://tarnivel.example");
    EXPECT_TRUE(probe.Links[1].starts_with(
        U"mailto:contact%40tarnivel.example?Subject=A%20propos%20de%20Tarnivel%20v.1.1.3%20"));
    EXPECT_TRUE(probe.Links[1].ends_with(U"%C2%A0UTC"));
    EXPECT_TRUE(window.TexteInfo.Text().starts_with(Localisation::Infos_Texte()));
}

} // namespace
