#include "app/WinAide.h"

#include "app/Addresses.h"
#include "app/App.h"
#include "app/Build.h"
#include "localisation/Localisation.h"
#include "support/FileHelpers.h"
#include "support/Status.h"

#include <utility>

using namespace Localisation;

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;
constexpr ColorGroup blue{0x0000FF};
constexpr LabelStyle programName{.alignment = TextAlignment::Center, .bold = true, .fontSize = 16};
constexpr LabelStyle linkStyle{.color = blue, .underline = true, .fontSize = 10, .link = true};

} // namespace

WinAide::WinAide()
    : DesktopWindow({.title = WinAide_Title(),
                     .width = 400,
                     .height = 480,
                     .minimumWidth = 300,
                     .minimumHeight = 300,
                     .hasStatusBar = true,
                     .movableModal = true,
                     .hasTitleButtons = false})
    // clang-format off
    //                        left  top width height  locks      tab
    , TexteInfo         (*this, {  20,  48, 360, 380, L | T | R | B, 2}, 11)
    , BoutonOk          (*this, { 306, 440,  74,  20, R | B,         3}, Btn_Fermer())
    , StaticTextNomProg (*this, { 111,   0, 178,  36, L | T | R,     4}, U"Tarnivel", programName)
    , LabBlockUI        (*this, 5)
    , Web2              (*this, {  20, 440, 190,  12, L | B,         6}, Addresses::WebSite, linkStyle)
    , Email2            (*this, {  20, 455, 160,  12, L | B,         7}, Addresses::Mail, linkStyle)
// clang-format on
{
    TexteInfo.SetReadOnly(true);
    TexteInfo.SetText(Infos_Texte() + U"\n \n" + Infos_Menu());
    TexteInfo.SetAccessibleName(WinAide_Title());
    BoutonOk.SetDefault();
    Opening = [this] { Event_Opening(); };
    CancelClosing = [this](bool) { return Event_CancelClosing(); };
    Activated = [this] { Fncts::CmLabBlockUI(Fncts::CoverAct::Activated, this); };
    BoutonOk.Pressed = [this] { BoutonOk_Pressed(); };
    Web2.Pressed = [this] { Fncts::SuivreLien(Web2.Text()); };
    Email2.Pressed = [this] { FollowEmail2(); };
}

void WinAide::Event_Opening()
{
    LabBlockUI.Opening();
    Fncts::DecPosCtrl(*this);
    DrapMovableModal = true;
    DrapMenuTemp = std::exchange(Fncts::DrapMenu, false);
    BoutonOk.SetFocus();
}

bool WinAide::Event_CancelClosing()
{
    if (DrapMovableModal)
        Fncts::Refuser(Dit_ParBouton());
    else
        Fncts::DrapMenu = DrapMenuTemp;
    return DrapMovableModal;
}

void WinAide::BoutonOk_Pressed()
{
    DrapMovableModal = false;
    Close();
}

void WinAide::FollowEmail2() const
{
    const String subject = Join(
        {{U"A propos de Tarnivel v." + App::Current().Version, U" ", Build::TypeCompil, U" - ", Build::Stamp}}, {});
    Fncts::SuivreLien(U"mailto:" + EncodeURLComponent(Email2.Text()) + U"?Subject=" + EncodeURLComponent(subject));
}
