#include "support/Covers.h"

#include "localisation/Localisation.h"
#include "support/Diagnostics.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"
#include "toolkit/Dialogs.h"
#include "toolkit/core/System.h"

#include <algorithm>

namespace {

constexpr StringView firstName = U"LabBlockUI", coverName = U"LabBlockUI1", strangerName = U"LabBlockUI2";
constexpr Placement uncovered{0, 0, 16, 16};
constexpr LabelStyle labelStyle{.color = ColorGroup{0xFF0000}, .alignment = TextAlignment::Center};

/// All windows, the last one made first. A list of its own, since a message may open windows.
std::vector<DesktopWindow*> WindowsFromLastToFirst()
{
    return {DesktopWindow::All().rbegin(), DesktopWindow::All().rend()};
}

std::vector<DesktopUIControl*> ControlsNamed(const DesktopWindow& window, StringView name)
{
    std::vector<DesktopUIControl*> found;
    std::ranges::copy_if(window.Controls(), std::back_inserter(found),
                         [name](const DesktopUIControl* control) { return SameText(control->Name(), name); });
    return found;
}

void Cover(DesktopWindow& window)
{
    window.BlockKeyboard(true);
    const auto covers = ControlsNamed(window, coverName);
    if (covers.empty()) {
        TellAuthors(U"CtrlDsFenetrDiag, there is not 'LabBlockUI' in window '" + window.Title() + U"'");
        return;
    }
    DesktopUIControl& cover = *covers.front();
    cover.SetVisible(true);
    cover.Place(0, 0, window.Width(), window.Height());
    if ((cover.Locks() & (Lock::Left | Lock::Top)) != (Lock::Left | Lock::Top))
        TellAuthors(U"CtrlDsFenetrDiag, 'LabBlockUI' should be Lock Left and Lock Top");
    cover.SetLocks(Lock::Left | Lock::Top | Lock::Right | Lock::Bottom);
    if (covers.size() > 1)
        TellAuthors(U"CtrlDsFenetrDiag, there is more than one 'LabBlockUI' in window '" + window.Title() + U"'");
}

void Uncover(DesktopWindow& window)
{
    window.BlockKeyboard(false);
    for (DesktopUIControl* const cover : ControlsNamed(window, coverName)) {
        cover->SetVisible(false);
        cover->Place(cover->Left(), cover->Top(), uncovered.width, uncovered.height);
        cover->SetLocks(cover->Locks() & ~(Lock::Right | Lock::Bottom));
    }
}

} // namespace

namespace Fncts {

LabBlockUISet::LabBlockUISet(DesktopWindow& window, int tab)
    : first_(window, {uncovered.left, uncovered.top, uncovered.width, uncovered.height, uncovered.locks, tab}, U" ",
             labelStyle)
{
    first_.SetName(firstName);
    first_.SetVisible(false);
}

void LabBlockUISet::Opening()
{
    if (!clone_) {
        clone_ = std::make_unique<DesktopLabel>(first_.Parent(), uncovered, U" ", labelStyle);
        clone_->SetName(coverName);
        clone_->SetVisible(false);
    }
    if (!ControlsNamed(first_.Parent(), strangerName).empty()) TellAuthors(U"LabBlockUI, LabBlockUI(2) is not Nil");
}

bool CtrlDsFenetrDiag(DesktopWindow* win, bool opening)
{
    if (opening && (win == nullptr || !win->Visible())) return false;
    CmLabBlockUI(CoverAct::Remember, opening ? win : nullptr);
    for (DesktopWindow* const window : WindowsFromLastToFirst()) {
        if (window == win || !window->Visible()) continue;
        if (opening)
            Cover(*window);
        else
            Uncover(*window);
    }
    return opening;
}

bool CmLabBlockUI(CoverAct act, DesktopWindow* win)
{
    static DesktopWindow* MemFenetr = nullptr;
    static Int64 TpDerTicks = 0;
    constexpr Int64 ticksOfOneAct = 12;
    if (act == CoverAct::Remember) {
        MemFenetr = win;
    } else if (MemFenetr != nullptr && MemFenetr != win) {
        if (System::Ticks() - TpDerTicks > ticksOfOneAct) Refuser(Localisation::Dit_Occupe());
        MemFenetr->Show();
    }
    TpDerTicks = System::Ticks();
    return MemFenetr == nullptr;
}

void DecPosCtrl(DesktopWindow& win)
{
    for (DesktopUIControl* const control : win.Controls())
        if (dynamic_cast<DesktopTextField*>(control) != nullptr)
            control->SetTop(control->Top() - 1);
        else if (dynamic_cast<DesktopSlider*>(control) != nullptr)
            control->SetTop(control->Top() + 2);
}

void CtrlFenetrOuv(const std::vector<DesktopWindow*>& known)
{
    String titles;
    for (DesktopWindow* const window : WindowsFromLastToFirst())
        if (window->IsOpen() && std::ranges::find(known, window) == known.end())
            titles.insert(0, String(EndOfLine::Native) + U" • '" + window->Title() + U"'");
    if (titles.empty()) return;
    MessageBox(U"Error ! Please contact the authors, PrefsCharger, Windows launched before read AffHelpTag !" + titles);
}

void WrkArrSegButBugF(DesktopWindow& win)
{
    DesktopUIControl* const focus = win.Focus();
    if (focus == nullptr || dynamic_cast<DesktopSegmentedButton*>(focus) != nullptr)
        win.SetFocus();
    else
        focus->SetFocus();
}

} // namespace Fncts
