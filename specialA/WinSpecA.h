/// The window "Spécial A".
#pragma once

#include "specialA/Treatment.h"
#include "support/Covers.h"
#include "support/DialogHelpers.h"
#include "support/TextFiles.h"
#include "toolkit/DesktopCanvas.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopGroupBox.h"
#include "toolkit/DesktopListBox.h"
#include "toolkit/DesktopWindow.h"
#include "toolkit/Timer.h"

/// Makes up to two variants of a text file from a table of replacements.
///
/// While it is open its controls hold what is set; the lists of `App` hold it otherwise, and during a treatment too.
/// One object is one opening.
class WinSpecA final : public DesktopWindow {
public:
    /// `segButtSpecA` is the main window's button that is down while this window is open, `timerQuit` the main window's
    /// timer that ends the program.
    WinSpecA(const DesktopWindow& winMain, DesktopSegmentedButton& segButtSpecA, Timer& timerQuit);

    // The controls, in the order of creation.
    Fncts::LabBlockUISet LabBlockUI;
    DesktopGroupBox GroupBoxSource;
    DesktopButton PushButtSource;
    DesktopLabel StTextFichSource;
    DesktopListBox ListboxRR;
    DesktopLabel LabelOrg;
    DesktopButton PushButtTrait;
    DesktopLabel LabelDest2, LabelDest1;
    DesktopCanvas CanvDrag;
    DesktopButton PushButtAdd, PushButtSupp;
    DesktopTextField TextFieldOrg, TextFieldDest1, TextFieldDest2;
    DesktopButton PushButtQuit;
    DesktopCanvas CanvFocus;
    DesktopButton PushButtCopiList;
    DesktopProgressBar ProgressTrait;

    // Treat.cpp
    /// Begins a treatment, or stops the present one.
    void PushButtTrait_Pressed();
    /// While the program is busy nothing here can be changed.
    void EnableControls(bool idle);

    // Source.cpp
    /// Takes a new original; with nothing the user chooses one.
    void ActButtSource(std::optional<FolderItem> item);
    void PushButtSource_Pressed();
    void GroupBoxSource_DragEnter();
    void GroupBoxSource_DragExit();
    void GroupBoxSource_DropObject(const DragItem& item);

    // Table.cpp
    void PushButtAdd_Pressed();
    void PushButtSupp_Pressed();
    void PushButtCopiList_Pressed();
    /// Inserts rows below the selected one, without the two that `PushButtCopiList` puts above the others. What there
    /// is no room for is left out, and told.
    void ListboxRR_RowsPasted(std::vector<CellRow> rows);

private:
    // WinSpecA.cpp: the shell.
    void BindHandlers();
    void NameControls();
    void Event_Opening();
    bool Event_CancelClosing(bool appQuitting);
    void PushButtQuit_Pressed();
    /// Hands height, path and table to `App`.
    void FermFenetr();

    // Source.cpp
    /// Brings path, label and field in line with `FichOrg`; true when that can be treated. What can't be reached now
    /// keeps its path and name.
    bool FairePath();
    /// Darkens that place, or nothing with a width below 0.
    void AffCanvDrag(int left, int top, int width, int height);

    // Table.cpp
    void ShowTable();
    /// Whether the table may have these rows; if not, it was told.
    bool ListboxRR_Accepts(const std::vector<CellRow>& rows);
    /// Brings the lists of `App` in line with the window; the result is the number of rows.
    Int16 FaireTab();

    // Treat.cpp
    bool GoesOn(StringView message, StringView explanation = {});
    /// Asks about what can't be had back; the default is to keep it.
    bool AsksToLose(StringView message, StringView keep, StringView lose);
    /// After a beep.
    void Tell(StringView message, Fncts::DialogIcon icon = Fncts::DialogIcon::Note, StringView explanation = {});
    /// Treats the original and writes what comes of it, after all questions.
    void TreatOriginal();
    /// The treatment of a text, during which the window stays alive; nothing if it was stopped.
    std::optional<Treatment> TreatVisibly(StringView original);
    /// Writes one variant under that name beside the original; nothing is a variant that would grow too long. Whether
    /// it is written; if not, the user knows.
    bool WriteDestination(StringView name, const std::optional<String>& text, const Fncts::Reading& original);
    /// Whether the user gives up what is there, if anything.
    bool MayReplace(const FolderItem& target, const Fncts::Reading& original);

    const DesktopWindow& winMain_;
    DesktopSegmentedButton& segButtSpecA_;
    Timer& timerQuit_;
    /// The original file, nothing until one was chosen.
    std::optional<FolderItem> FichOrg;
    /// A treatment is under way; the user has stopped it.
    bool treats_ = false, stops_ = false;
};
