#include "app/App.h"
#include "preferences/WinPrefs.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

class PreferencesWindow : public testing::Test {
protected:
    void Open(int left = 100)
    {
        Fncts::DrapMenu = true;
        winMain.SetLeft(left);
        winMain.SetTop(50);
        window.emplace(winMain, segButtSpecA);
        window->Show();
        EXPECT_FALSE(Fncts::DrapMenu);
    }

    char program[8] = "tests", *argv[2] = {program, nullptr};
    int argc = 1;
    App app{argc, argv};
    Probe probe;
    DesktopWindow winMain{{.title = U"Main", .width = 700, .height = 400}};
    DesktopSegmentedButton segButtSpecA{winMain, {0, 0, 100, 20}, U"Spécial A"};
    std::optional<WinPrefs> window;
};

TEST_F(PreferencesWindow, TakesOverBothSettingsOrNone)
{
    app.DefVolSon(40);
    app.DrapAffBtnSpecA = false;
    segButtSpecA.SetVisible(false);
    for (const bool taken : {false, true}) {
        Open();
        EXPECT_TRUE(window->SliderVol.Value() == 40 && window->SliderVol.Tooltip() == U"40");
        EXPECT_FALSE(window->CheckBoxAffBtnSpecA.Value());
        window->SliderVol.SetValue(7);
        EXPECT_EQ(window->SliderVol.Tooltip(), U"7");
        window->CheckBoxAffBtnSpecA.SetValue(true);
        window->Close();
        EXPECT_TRUE(window->Visible());
        EXPECT_EQ(app.DefVolSon(), 40) << "not before the button is pressed";
        taken ? window->PushButtOk_Pressed() : window->PushButtAnnuler_Pressed();
        EXPECT_TRUE(!window->Visible() && Fncts::DrapMenu);
        EXPECT_EQ(app.DefVolSon(), taken ? 7 : 40);
        EXPECT_TRUE(app.DrapAffBtnSpecA == taken && segButtSpecA.Visible() == taken);
    }
    EXPECT_EQ(probe.Beeps, 2);
    for (const auto& [set, kept] : {std::pair<Int16, Int16>(-1, 80), {0, 0}, {100, 100}, {101, 80}}) {
        app.DefVolSon(set);
        EXPECT_TRUE(app.DefVolSon() == kept && Fncts::_x_Bip::Bip()->Volume() == kept) << set;
    }
}

TEST_F(PreferencesWindow, StandsOnTheMainWindowAndOnTheScreen)
{
    probe.ScreenSize = {{1000, 800}};
    const std::pair<int, int> rows[] = {{100, 250}, {-300, 0}, {600, 600}};
    for (const auto& [leftOfMain, left] : rows) {
        Open(leftOfMain);
        EXPECT_EQ(window->Left(), left);
        EXPECT_EQ(window->Top(), 80);
        window->PushButtAnnuler_Pressed();
    }
}

} // namespace
