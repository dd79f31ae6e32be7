#include "localisation/Localisation.h"
#include "support/Covers.h"
#include "support/DialogHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "toolkit/Probe.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Window : DesktopWindow {
    explicit Window(const String& title)
        : DesktopWindow({.title = title, .width = 300, .height = 200})
    {
        labBlockUI.Opening();
        Show();
    }

    [[nodiscard]] DesktopUIControl& Cover() const
    {
        return **std::ranges::find(Controls(), U"LabBlockUI1", [](const auto* control) { return control->Name(); });
    }
    [[nodiscard]] bool IsCovered() const
    {
        return Cover().Visible() && Cover().Width() == Width() && Cover().Height() == Height();
    }
    [[nodiscard]] bool IsFree() const { return !Cover().Visible() && Cover().Width() == 16 && Cover().Height() == 16; }

    DesktopTextField field{*this, {10, 20, 100, 22}};
    Fncts::LabBlockUISet labBlockUI{*this, 1};
};

class Dialogs : public ::testing::Test {
protected:
    static Int16 Ask(DesktopWindow* win)
    {
        return Fncts::MyDialogBox(
            {.message = U"Really?", .btnAction = U"Yes", .btnCancel = U"No", .btnAlternate = U"Later", .win = win});
    }
    Probe probe_;
    Window asking_{U"asking"}, other_{U"other"};
};

TEST_F(Dialogs, TheButtonPressedIsTheResultAndTheProgramIsQuietMeanwhile)
{
    probe_.WhileAsking = [] { EXPECT_TRUE(!Fncts::DrapMenu && Fncts::DrapDiagBox); };
    for (const int button : {1, 2, 3, 0}) {
        Fncts::DrapMenu = button == 1;
        probe_.Answers.emplace_back(button);
        EXPECT_EQ(Ask(&asking_), button);
        EXPECT_EQ(Fncts::DrapMenu, button == 1);
        EXPECT_FALSE(Fncts::DrapDiagBox);
    }
    EXPECT_EQ(probe_.Asked.back(), U"Really?[Yes][No][Later]");
    Fncts::MyDialogBox(
        {.message = U"", .explanation = U"More", .btnAction = U"Ok", .icon = Fncts::DialogIcon::Failure});
    EXPECT_EQ(probe_.Asked.back(), U" \nMore[Ok]");
}

TEST_F(Dialogs, ASheetCoversTheOtherVisibleWindowsAlone)
{
    Window hidden(U"hidden");
    hidden.Close();
    probe_.WhileAsking = [&] {
        EXPECT_TRUE(asking_.IsFree() && hidden.IsFree() && other_.IsCovered());
        other_.SetWidth(400);
        other_.SetHeight(100);
        EXPECT_TRUE(other_.IsCovered()) << "the cover follows the window";
        EXPECT_EQ(other_.Focus(), nullptr) << "the keyboard is blocked too";
    };
    other_.field.SetFocus();
    Ask(&asking_);
    Fncts::MyDialogSave(U"name", U"Where?", &asking_);
    EXPECT_EQ(other_.Focus(), &other_.field);
    other_.SetWidth(500);
    EXPECT_TRUE(other_.IsFree() && other_.Height() == 100);

    probe_.WhileAsking = [&] { EXPECT_TRUE(asking_.IsFree() && other_.IsFree()); };
    Ask(nullptr);
    Ask(&hidden);
    EXPECT_EQ(probe_.Asked.size(), 4U);
}

TEST_F(Dialogs, AFaultInADialogLeavesNothingLocked)
{
    Fncts::DrapMenu = true;
    probe_.WhileAsking = [] { throw std::bad_alloc(); };
    EXPECT_THROW(Ask(&asking_), std::bad_alloc);
    EXPECT_TRUE(Fncts::DrapMenu && !Fncts::DrapDiagBox && other_.IsFree());
}

TEST_F(Dialogs, AnActivatedWindowSendsTheUserBackWithOneBeep)
{
    const auto activate = [&] { return Fncts::CmLabBlockUI(Fncts::CoverAct::Activated, &other_); };
    EXPECT_TRUE(activate()) << "no dialog";
    EXPECT_FALSE(Fncts::CmLabBlockUI(Fncts::CoverAct::Remember, &asking_));
    EXPECT_FALSE(activate());
    EXPECT_EQ(probe_.Beeps, 0) << "at once after the dialog opened";
    Fncts::Pause(14);
    activate();
    activate();
    EXPECT_EQ(probe_.Beeps, 1);
    EXPECT_EQ(probe_.Said, std::vector<String>{Localisation::Dit_Occupe()});
    Fncts::CmLabBlockUI(Fncts::CoverAct::Remember, nullptr);
}

TEST_F(Dialogs, TheFocusComesBack)
{
    DesktopSegmentedButton segment(asking_, {10, 80, 50, 20}, U"s");
    asking_.field.SetFocus();
    Ask(&asking_);
    EXPECT_EQ(asking_.Focus(), &asking_.field);
    segment.SetFocus();
    Ask(&asking_);
    EXPECT_EQ(asking_.Focus(), nullptr);
}

} // namespace
