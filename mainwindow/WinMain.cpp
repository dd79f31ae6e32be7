#include "mainwindow/WinMain.h"

#include "app/Addresses.h"
#include "app/App.h"
#include "app/Build.h"
#include "app/WinAide.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "preferences/WinPrefs.h"
#include "specialA/WinSpecA.h"
#include "support/Diagnostics.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "support/TextHelpers.h"
#include "toolkit/Desktop.h"

#include <algorithm>
#include <utility>

using namespace Localisation;

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;
constexpr int timerPeriod = 10;

} // namespace

WinMain::WinMain()
    : DesktopWindow({.title = U"Tarnivel",
                     .width = 760,
                     .height = 500,
                     .minimumWidth = 720,
                     .minimumHeight = 400,
                     .hasMenuBar = true,
                     .hasStatusBar = true})
    // clang-format off
    //                            left  top width height  locks       tab
    , BtnSelFichModel     (*this, { 630,  14, 110,  20, T | R,          5}, Btn_SelectFichier())
    , TextFieldMod1       (*this, { 158,  13, 460,  22, L | T | R,      0})
    , TextFieldMod2       (*this, { 158,  35, 460,  22, L | T | R,      1}, Addresses::DefaultModel)
    , BtnOuvUrlModel      (*this, { 630,  36, 110,  20, T | R,          8}, Btn_OpenUrl())
    , BtnSelFichSpack     (*this, { 630, 100, 110,  20, T | R,          9}, Btn_SelectFichier())
    , TextFieldSpack      (*this, { 158,  99, 460,  22, L | T | R,      3})
    , LbSpack             (*this, {  20, 100, 126,  20, L | T,         10}, StTextScenPack())
    , TextAreaAff         (*this, {  20, 164, 720, 306, L | T | R | B,  4})
    , BtnRun              (*this, {  20, 132, 126,  20, L | T,         12}, U"# Gen / Stop #")
    , TimerDebRun         (timerPeriod)
    , BtnSelArchivDoss    (*this, { 630,  68, 110,  20, T | R,         13}, Btn_SelectDossier())
    , TextFieldArchiv     (*this, { 158,  67, 460,  22, L | T | R,      2})
    , BtnSave             (*this, { 630, 132, 110,  20, T | R,         14}, Btn_SauvFichier())
    , ChBoxArchiv         (*this, {  20,  68, 126,  20, L | T,         15}, ChBoxArchive())
    , StaticTextVersion   (*this, { 690, 480,  50,  16, R | B,         16}, U"v.0.0.0",
                           {.alignment = TextAlignment::Right, .bold = true, .fontSize = 10, .link = true})
    , BtnAide             (*this, {  20, 475,  22,  20, L | B,         17}, U"?")
    , BtnEnabDis          (*this, { 478, 132, 140,  20, T | R,         18}, Btn_EnabDis())
    , BtnAffDoss          (*this, { 346, 132, 120,  20, T | R,         19}, Btn_AffDoss())
    , TextFieldCherch     (*this, {  52, 475, 175,  22, L | B,         20})
    , PushButtCherch      (*this, { 257, 475,  38,  20, L | B,         22}, U"☞", 18)
    , LabBlockUI          (*this, 23)
    , PushButtInitCherch  (*this, { 229, 475,  26,  20, L | B,         24}, U"⊗")
    , PushButtDebug       (*this, { 315, 478,  80,  20, L | B,         25}, U"Debug Butt")
    , PopMenuAff          (*this, { 158, 132, 126,  20, L | T,         11}, PopupAff(), 2)
    , SegButtSpecA        (*this, { 556, 477, 100,  24, L | B,         -1}, WinSpecA_Title())
    , TimerQuit           (timerPeriod)
    , RadGrpSrc           (*this, {  20,  14, 126,  45, L | T,         28},
                           RdButtSourceA() + String(EndOfLine::Native) + RdButtSourceB())
    , ProgressProposer    (*this, { 315, 479, 225,  16, L | R | B})
// clang-format on
{
    PushButtDebug.SetVisible(false);
    ProgressProposer.SetVisible(false);
    NameControls();
    BindHandlers();
    BindMenus();
}

WinMain::~WinMain() = default;

void WinMain::NameControls()
{
    for (DesktopButton* button : {&BtnSelFichModel, &BtnSelFichSpack, &BtnSelArchivDoss})
        button->SetTooltip(Btn_Select_HT());
    BtnSave.SetTooltip(Btn_SauvFichier_HT());
    BtnEnabDis.SetTooltip(Btn_EnabDis_HT());
    BtnAffDoss.SetTooltip(Btn_AffDoss_HT());
    PushButtCherch.SetTooltip(Btn_Chercher_HT());
    StaticTextVersion.SetTooltip(Btn_Historic());

    // Heard alone, buttons of one caption must tell of which field they are.
    BtnSelFichModel.SetAccessibleName(Btn_SelectFichier() + U", " + RdButtSourceA());
    BtnSelArchivDoss.SetAccessibleName(Btn_SelectDossier() + U", " + ChBoxArchive());
    BtnSelFichSpack.SetAccessibleName(Btn_SelectFichier() + U", " + StTextScenPack());
    RadGrpSrc.SetAccessibleName(RdButtSourceA() + U" / " + RdButtSourceB());
    TextFieldMod1.SetAccessibleName(RdButtSourceA());
    TextFieldMod2.SetAccessibleName(RdButtSourceB());
    TextFieldArchiv.SetAccessibleName(ChBoxArchive());
    TextFieldSpack.SetAccessibleName(StTextScenPack());
    TextFieldCherch.SetAccessibleName(Btn_Chercher_HT());
    PushButtCherch.SetAccessibleName(Btn_Chercher_HT());
    PushButtInitCherch.SetAccessibleName(Menu_EditClear());
    BtnAide.SetAccessibleName(WinAide_Title());
    ProgressProposer.SetAccessibleName(Menu_TexteProposer());
    PopMenuAff.SetAccessibleName(ReplaceAll(PopupAff(), U"\n", U" / "));
}

void WinMain::Tell(StringView message, StringView explanation)
{
    Fncts::BeepNbT(1);
    Fncts::MyDialogBox({.message = message, .explanation = explanation, .btnAction = Btn_Ok(), .win = this});
}

void WinMain::BindHandlers()
{
    for (DesktopUIControl* const control : std::initializer_list<DesktopUIControl*>{
             &BtnEnabDis, &BtnAffDoss, &BtnSave, &PushButtCherch, &PushButtInitCherch, &PopMenuAff})
        control->SetFocusByTabAlone();
    App::Current().SessionEnding = [this](const auto& mayAsk) { return Event_SessionEnding(mayAsk); };
    Opening = [this] { Event_Opening(); };
    CancelClosing = [this](bool appQuitting) { return Event_CancelClosing(appQuitting); };
    Activated = [this] {
        Fncts::CmLabBlockUI(Fncts::CoverAct::Activated, this);
        Fncts::WrkArrSegButBugF(*this);
    };
    BtnSelFichModel.Pressed = [this] { ActSelFichModel(Keyboard::AsyncShiftKey()); };
    BtnSelFichSpack.Pressed = [this] { ActSelFichSpack(Keyboard::AsyncShiftKey()); };
    BtnSelArchivDoss.Pressed = [this] { ActSelArchivDoss(Keyboard::AsyncShiftKey()); };
    BtnOuvUrlModel.Pressed = [this] { Fncts::SuivreLien(TextFieldMod2.Text()); };
    BtnAffDoss.Pressed = [this] { BtnAffDoss_Pressed(); };
    BtnSave.Pressed = [this] { BtnSave_Pressed(); };
    BtnEnabDis.Pressed = [this] { BtnEnabDis_Pressed(); };
    BindRun();
    BindSearch();
    BindPathFields();
    TextAreaAff.CaretMoved = [this] { ShowStatus(); };
    for (TextDocument& document : documents_) {
        document.ModifiedChanged = [this] { SetModified(std::ranges::any_of(documents_, &TextDocument::Modified)); };
        document.Changed = [this] {
            Fncts::Dire({}); // what was said of the text before
            ShowStatus();
        };
    }
    PopMenuAff.SelectionChanged = [this] { PopMenuAff_SelectionChanged(); };
    StaticTextVersion.Pressed = [] { Fncts::SuivreLien(Addresses::VersionNotes); };
    BtnAide.Pressed = [this] {
        winAide_ = std::make_unique<WinAide>();
        winAide_->Show();
    };
    SegButtSpecA.SetShortcut(U"Ctrl+Shift+A"); // the Tab key passes it by
    SegButtSpecA.Pressed = [this](int) { SegButtSpecA_Pressed(); };
    // The button is never seen; a debugger can press it to free or to lock the interface.
    PushButtDebug.Pressed = [] { App::Current().EnableMenuBoutons(!Fncts::DrapMenu); };
    TimerQuit.Action = [this] { App::Current().DrapOkQuit ? App::Current().Quit(0) : Close(); };
}

void WinMain::BindMenus()
{
    App& app = App::Current();
    app.EnableControls = [this](bool idle) { EnableControls(idle); };
    app.Menus.FichSelFichModel.Action = [this] { ActSelFichModel(false); };
    app.Menus.FichSelArchivDoss.Action = [this] { ActSelArchivDoss(false); };
    app.Menus.FichSelFichSpack.Action = [this] { ActSelFichSpack(false); };
    app.Menus.FichSaveFile.Action = [this] { ActSaveFile(); };
    app.Menus.TexteProposer.Action = [this] { TexteProposer_Action(); };
    app.Menus.ApplePrefs.Action = [this] { ApplePrefs_Action(); };
    BindTextMenu();
    app.MenuBarSelected = [this] { EnableMenus(); };
}

void WinMain::EnableControls(bool idle)
{
    // A disabled control hands the focus on.
    if (!idle && !focusWhenIdle_) focusWhenIdle_ = Focus();
    for (DesktopUIControl* const control :
         std::initializer_list<DesktopUIControl*>{&RadGrpSrc,          &TextFieldMod1,    &BtnSelFichModel,
                                                  &TextFieldMod2,      &BtnOuvUrlModel,   &ChBoxArchiv,
                                                  &TextFieldArchiv,    &BtnSelArchivDoss, &LbSpack,
                                                  &TextFieldSpack,     &BtnSelFichSpack,  &PopMenuAff,
                                                  &BtnAffDoss,         &BtnEnabDis,       &BtnSave,
                                                  &TextAreaAff,        &BtnAide,          &TextFieldCherch,
                                                  &PushButtInitCherch, &PushButtCherch,   &StaticTextVersion,
                                                  &SegButtSpecA})
        control->SetEnabled(idle);
    if (idle && focusWhenIdle_) std::exchange(focusWhenIdle_, nullptr)->SetFocus();
    BtnRun.SetCaption(idle ? Btn_Generer() : Btn_Arreter());
    if (SegButtSpecA.Selected(0) && winSpecA_) winSpecA_->EnableControls(idle);
}

void WinMain::Event_Opening()
{
    LabBlockUI.Opening();
    Fncts::DecPosCtrl(*this);
    const String help = Btn_Aide_HT();
    BtnAide.SetTooltip(Join({{Fncts::FracTexte(help, 1), Build::TypeCompil, Fncts::FracTexte(help, 2), Build::Stamp,
                              Fncts::FracTexte(help, 3)}},
                            {}));
    App::Current().DrapOkQuit = false;
    StaticTextVersion.SetText(U"v." + App::Current().Version);
    StaticTextVersion.SetTooltip(Join({{Build::TypeCompil, Build::Stamp}}, U" - "));
    StaticTextVersion.SetAccessibleName(Btn_Historic() + U" " + StaticTextVersion.Text());

    if (const String failure = StartFailure(); !failure.empty()) return RefuseStart(failure);
    PrefsCharger();
    SegButtSpecA.SetVisible(App::Current().DrapAffBtnSpecA);
    Fncts::AinitProg = true;
    App::Current().EnableMenuBoutons(true);
    AffArea();
    TextAreaAff.SetFocus();
}

/// What keeps the program from starting, or "".
String WinMain::StartFailure() const
{
    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    if (screen.Width < App::SmallestScreen.Width || screen.Height < App::SmallestScreen.Height)
        return U"The screen size is too small.";
    const Fncts::Outcome folder = Fncts::DefDossAppDataPref();
    return folder ? U"" : U"Impossible to create the Preferences folder.\n" + folder.failure;
}

void WinMain::RefuseStart(StringView failure)
{
    Fncts::BeepNbT(1);
    const String message = Join({{ContactAuthors, U" ", failure}}, EndOfLine::Native);
    Fncts::MyDialogBox({.message = message, .btnAction = Btn_Quit(), .icon = Fncts::DialogIcon::Failure});
    Fncts::DrapMenu = true;
    Fncts::DossierPref.reset();
    Close();
    App::Current().Quit(1);
}

/// A user's close is refused at first: it starts the timer, which quits the program, whose close then passes.
bool WinMain::Event_CancelClosing(bool appQuitting)
{
    if (App::Current().DrapOkQuit) {
        if (!appQuitting) TellAuthorsShortly(U"The application should be quitting!");
        return false;
    }
    if (!appQuitting && !Fncts::DrapMenu) {
        Fncts::Refuser(Dit_Occupe());
        return true;
    }
    if (!appQuitting) {
        if (!AsksToLose({rowModel, rowSource, rowDest})) return true;
        KeepSettings();
    }
    TimerQuit.SetRunMode(Timer::RunModes::Single);
    return true;
}

bool WinMain::Event_SessionEnding(const std::function<bool()>& mayAsk)
{
    if (App::Current().DrapOkQuit) return true;
    const bool isEdited = std::ranges::any_of(documents_, &TextDocument::Modified);
    if (isEdited && mayAsk() && !AsksToLose({rowModel, rowSource, rowDest})) return false;
    KeepSettings();
    return true;
}

void WinMain::KeepSettings()
{
    // Before the saving, whose message lets a second request to quit come here.
    App::Current().DrapOkQuit = true;
    // Whatever is under way, the other window hands over what it holds.
    Fncts::DrapMenu = true;
    if (SegButtSpecA.Selected(0) && winSpecA_) winSpecA_->Close();
    Fncts::DrapMenu = false;
    if (Fncts::AinitProg) PrefsSauver();
}

void WinMain::SegButtSpecA_Pressed()
{
    if (SegButtSpecA.Selected(0)) {
        winSpecA_ = std::make_unique<WinSpecA>(*this, SegButtSpecA, TimerQuit);
        winSpecA_->Show();
    } else if (winSpecA_)
        winSpecA_->Close();
    Fncts::WrkArrSegButBugF(*this);
}

void WinMain::ApplePrefs_Action()
{
    if (!Keyboard::AsyncShiftKey() || !Keyboard::AsyncAltKey()) {
        winPrefs_ = std::make_unique<WinPrefs>(*this, SegButtSpecA);
        winPrefs_->Show();
    } else if (Fncts::PasNil_Existe_Alias(Fncts::DossierPref, true))
        Fncts::Ouvrir(*Fncts::DossierPref);
    else
        Fncts::Refuser(Filled(Dit_PasLa(), {Fncts::DossierPref ? Fncts::DossierPref->NativePath() : String()}));
}
