#include "specialA/WinSpecA.h"

#include "app/App.h"
#include "localisation/Localisation.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

using namespace Localisation;

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;
constexpr LabelStyle multiline{.fontSize = 12, .multiline = true};
constexpr FieldStyle onlyRead{.readOnly = true, .color = {0x5E5E5E}}, fileName{.oneLine = true};

/// Stripes, so that the eye stays in its row.
bool PaintStripe(Graphics& graphics, int row, int width, int height)
{
    constexpr ColorGroup darkEven{0x292626}, darkOdd{0x211E1E}, lightEven{0xF3F6FA};
    const bool even = row % 2 == 0, dark = IsDarkMode();
    if (!even && !dark) return false;
    graphics.SetDrawingColor(!dark ? lightEven : even ? darkEven : darkOdd);
    graphics.FillRectangle(0, 0, width, height);
    return false;
}

} // namespace

WinSpecA::WinSpecA(const DesktopWindow& winMain, DesktopSegmentedButton& segButtSpecA, Timer& timerQuit)
    : DesktopWindow({.title = WinSpecA_Title(),
                     .width = 670,
                     .height = 400,
                     .minimumWidth = 670,
                     .minimumHeight = 300,
                     .maximumWidth = 670,
                     .hasMenuBar = true,
                     .hasStatusBar = true})
    // clang-format off
    //                       left  top width height  locks       tab
    , LabBlockUI       (*this, -1)
    , GroupBoxSource   (*this, {  20,  20, 630, 103, L | T | R},         GrBoxSource())
    , PushButtSource   (*this, { 484,  88, 152,  20, T | R,          0}, Btn_ChoisirFich())
    , StTextFichSource (*this, {  34,  45, 607,  40, L | T | R,      1}, {}, multiline)
    , ListboxRR        (*this, {  20, 159, 630, 189, L | T | R | B,  5}, 3)
    , LabelOrg         (*this, {  20, 135,  58,  20, L | T},             LabOrg())
    , PushButtTrait    (*this, { 570, 360,  80,  20, R | B,          9}, Btn_Trait())
    , LabelDest2       (*this, { 440, 135,  58,  20, L | T},             LabDest2())
    , LabelDest1       (*this, { 230, 135,  58,  20, L | T},             LabDest1())
    , CanvDrag         (*this, { 626,   2,  20,  20, 0})
    , PushButtAdd      (*this, {  20, 360,  26,  20, L | B,          6}, U"+")
    , PushButtSupp     (*this, {  49, 360,  26,  20, L | B,          7}, U"-")
    , TextFieldOrg     (*this, {  80, 134, 140,  22, L | T,          2}, {}, onlyRead)
    , TextFieldDest1   (*this, { 290, 134, 140,  22, L | T,          3}, {}, fileName)
    , TextFieldDest2   (*this, { 500, 134, 140,  22, L | T,          4}, {}, fileName)
    , PushButtQuit     (*this, { 478, 360,  80,  20, R | B,          8}, Btn_Quit())
    , CanvFocus        (*this, { 655,   0,  16,  20, T | R,         10})
    , PushButtCopiList (*this, {  87, 360,  26,  20, L | B},             U"⧉")
    , ProgressTrait    (*this, { 128, 360, 335,  20, L | R | B})
    // clang-format on
    , winMain_(winMain)
    , segButtSpecA_(segButtSpecA)
    , timerQuit_(timerQuit)
{
    CanvDrag.SetEnabled(false);
    CanvDrag.SetVisible(false);
    CanvFocus.AllowFocus();
    ProgressTrait.SetVisible(false);
    NameControls();
    BindHandlers();
}

void WinSpecA::NameControls()
{
    GroupBoxSource.SetTooltip(GrBox_HT());
    PushButtCopiList.SetTooltip(Btn_CopiList_HT());
    PushButtCopiList.SetAccessibleName(Btn_CopiList_HT());
    StTextFichSource.SetAccessibleName(GrBoxSource());
    TextFieldOrg.SetAccessibleName(LabOrg());
    TextFieldDest1.SetAccessibleName(LabDest1());
    TextFieldDest2.SetAccessibleName(LabDest2());
    ListboxRR.SetAccessibleName(WinSpecA_Title());
    ListboxRR.SetColumnNames({LabOrg(), LabDest1(), LabDest2()});
    PushButtSupp.SetAccessibleName(Menu_EditClear());
    CanvFocus.SetAccessibleName(WinSpecA_Title());
    ProgressTrait.SetAccessibleName(Btn_Trait());
}

void WinSpecA::BindHandlers()
{
    Opening = [this] { Event_Opening(); };
    CancelClosing = [this](bool appQuitting) { return Event_CancelClosing(appQuitting); };
    Activated = [this] { Fncts::CmLabBlockUI(Fncts::CoverAct::Activated, this); };
    GroupBoxSource.DragEnter = [this] { GroupBoxSource_DragEnter(); };
    GroupBoxSource.DragExit = [this] { GroupBoxSource_DragExit(); };
    GroupBoxSource.DropObject = [this](const DragItem& item) { GroupBoxSource_DropObject(item); };
    PushButtSource.Pressed = [this] { PushButtSource_Pressed(); };
    ListboxRR.PaintCellBackground = [](Graphics& graphics, int row, int /*column*/, int width, int height) {
        return PaintStripe(graphics, row, width, height);
    };
    ListboxRR.Accepts = [this](const std::vector<CellRow>& rows) { return ListboxRR_Accepts(rows); };
    ListboxRR.RowsPasted = [this](std::vector<CellRow> rows) { ListboxRR_RowsPasted(std::move(rows)); };
    PushButtTrait.Pressed = [this] { PushButtTrait_Pressed(); };
    CanvDrag.Paint = [](Graphics& graphics, int width, int height) {
        graphics.SetDrawingColor({0x000000}, 70);
        graphics.FillRoundRectangle(0, 0, width, height, 8, 8);
    };
    PushButtAdd.Pressed = [this] { PushButtAdd_Pressed(); };
    PushButtSupp.Pressed = [this] { PushButtSupp_Pressed(); };
    PushButtQuit.Pressed = [this] { PushButtQuit_Pressed(); };
    PushButtCopiList.Pressed = [this] { PushButtCopiList_Pressed(); };
}

void WinSpecA::Event_Opening()
{
    LabBlockUI.Opening();
    Fncts::DecPosCtrl(*this);
    const App& app = App::Current();
    SetLeft(winMain_.Left());
    SetTop(winMain_.Top());
    if (app.WspecAheight >= MinimumHeight() && Top() + app.WspecAheight < DesktopDisplay::DisplayAt(0).Height)
        SetHeight(app.WspecAheight);
    segButtSpecA_.SetSelected(0, true);
    ShowTable();
    FairePath();
}

bool WinSpecA::Event_CancelClosing(bool appQuitting)
{
    CanvFocus.SetFocus();
    if (appQuitting && !App::Current().DrapOkQuit) {
        timerQuit_.SetRunMode(Timer::RunModes::Single);
        return true;
    }
    if (!appQuitting && !Fncts::DrapMenu) {
        Fncts::Refuser(Dit_Occupe());
        return true;
    }
    segButtSpecA_.SetSelected(0, false);
    if (!appQuitting) FermFenetr();
    return false;
}

void WinSpecA::FermFenetr()
{
    App::Current().WspecAheight = static_cast<Int16>(RestoredPlace().height);
    FairePath();
    FaireTab();
}

void WinSpecA::PushButtQuit_Pressed()
{
    CanvFocus.SetFocus();
    App::Current().Quit(0);
}
