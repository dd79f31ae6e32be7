#include "preferences/WinPrefs.h"

#include "app/App.h"
#include "localisation/Localisation.h"
#include "support/Fncts.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

#include <algorithm>
#include <utility>

using namespace Localisation;

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;

} // namespace

WinPrefs::WinPrefs(const DesktopWindow& winMain, DesktopSegmentedButton& segButtSpecA)
    : DesktopWindow({.title = WinPref_Title(),
                     .width = 400,
                     .height = 131,
                     .hasStatusBar = true,
                     .resizable = false,
                     .movableModal = true,
                     .hasTitleButtons = false})
    // clang-format off
    //                          left  top width height  locks   tab
    , PushButtOk          (*this, { 311, 91,  69, 20, R | B,     3}, Btn_Ok())
    , PushButtAnnuler     (*this, { 199, 91, 100, 20, R | B,     2}, Btn_Annuler())
    , CheckBoxAffBtnSpecA (*this, {  20, 14, 360, 20, L | T | R, 0}, Pref_ChBoxAffBtnSpecA())
    , LabBlockUI          (*this, -1)
    , StTextVolume        (*this, { 100, 46, 130, 20, T | R}, StText_VolSfx(), {.alignment = TextAlignment::Right})
    , SliderVol           (*this, { 240, 46, 140, 23, T | R,     1},
                           {.minimum = 0, .maximum = 100, .value = 80, .lineStep = 1, .pageStep = 20})
    // clang-format on
    , winMain_(winMain)
    , segButtSpecA_(segButtSpecA)
{
    PushButtOk.SetDefault();
    PushButtAnnuler.SetCancel();
    SliderVol.SetTooltip(U"80");
    SliderVol.SetAccessibleName(StText_VolSfx());
    Opening = [this] { Event_Opening(); };
    CancelClosing = [this](bool) { return Event_CancelClosing(); };
    Activated = [this] { Fncts::CmLabBlockUI(Fncts::CoverAct::Activated, this); };
    PushButtOk.Pressed = [this] { PushButtOk_Pressed(); };
    PushButtAnnuler.Pressed = [this] { PushButtAnnuler_Pressed(); };
    SliderVol.ValueChanged = [this] { SliderVol_ValueChanged(); };
}

void WinPrefs::Event_Opening()
{
    LabBlockUI.Opening();
    Fncts::DecPosCtrl(*this);
    constexpr int below = 30;
    SetTop(winMain_.Top() + below);
    const int centred = (winMain_.Width() - Width()) / 2 + winMain_.Left();
    SetLeft(std::min(std::max(centred, 0), DesktopDisplay::DisplayAt(0).Width - Width()));
    DrapMovableModal = true;
    DrapMenuTemp = std::exchange(Fncts::DrapMenu, false);
    CheckBoxAffBtnSpecA.SetValue(App::Current().DrapAffBtnSpecA);
    SliderVol.SetValue(App::Current().DefVolSon());
}

void WinPrefs::SliderVol_ValueChanged() { SliderVol.SetTooltip(ToText(SliderVol.Value())); }

void WinPrefs::PushButtOk_Pressed()
{
    App& app = App::Current();
    if (CheckBoxAffBtnSpecA.Value() != app.DrapAffBtnSpecA) {
        app.DrapAffBtnSpecA = CheckBoxAffBtnSpecA.Value();
        segButtSpecA_.SetVisible(app.DrapAffBtnSpecA);
    }
    app.DefVolSon(static_cast<Int16>(SliderVol.Value()));
    FermFenetr();
}

void WinPrefs::PushButtAnnuler_Pressed() { FermFenetr(); }

void WinPrefs::FermFenetr()
{
    DrapMovableModal = false;
    Close();
}

bool WinPrefs::Event_CancelClosing()
{
    if (DrapMovableModal)
        Fncts::Refuser(Dit_ParBouton());
    else
        Fncts::DrapMenu = DrapMenuTemp;
    return DrapMovableModal;
}
