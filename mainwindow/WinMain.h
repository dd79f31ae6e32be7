/// The main window.
#pragma once

#include "engine/Proposal.h"
#include "engine/SceneryTexts.h"
#include "mainwindow/Colouring.h"
#include "preferences/PreferencesFile.h"
#include "support/Covers.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/Timer.h"
#include "toolkit/URLConnection.h"

#include <array>
#include <map>

class WinAide;
class WinPrefs;
class WinSpecA;
struct DateTime;

/// The window on which everything is done: it names the model and the scenery_packs.ini, runs, and shows and edits the
/// three texts.
///
/// The controls hold the settings; a path is kept as text in its field and turned into a file at each use. The three
/// texts live in documents, of which the text area shows one.
class WinMain final : public DesktopWindow {
    /// By row. They outlive the text area, which shows one of them.
    std::array<TextDocument, 3> documents_{TextDocument(SceneryColours()), TextDocument(SceneryColours()),
                                           TextDocument(SceneryColours())};

public:
    WinMain();
    ~WinMain() override;

    // The controls, in the order of creation.
    DesktopButton BtnSelFichModel;
    DesktopTextField TextFieldMod1, TextFieldMod2;
    DesktopButton BtnOuvUrlModel, BtnSelFichSpack;
    DesktopTextField TextFieldSpack;
    DesktopLabel LbSpack;
    DesktopTextArea TextAreaAff;
    DesktopButton BtnRun;
    Timer TimerDebRun;
    DesktopButton BtnSelArchivDoss;
    DesktopTextField TextFieldArchiv;
    DesktopButton BtnSave;
    DesktopCheckBox ChBoxArchiv;
    DesktopLabel StaticTextVersion;
    DesktopButton BtnAide, BtnEnabDis, BtnAffDoss;
    DesktopTextField TextFieldCherch;
    DesktopButton PushButtCherch;
    Fncts::LabBlockUISet LabBlockUI;
    DesktopButton PushButtInitCherch;
    URLConnection URLCnctLirePage;
    DesktopButton PushButtDebug;
    DesktopPopupMenu PopMenuAff;
    DesktopSegmentedButton SegButtSpecA;
    Timer TimerQuit;
    DesktopRadioGroup RadGrpSrc;
    DesktopProgressBar ProgressProposer;

    // Run.cpp
    void BtnRun_Pressed();
    void TimerDebRun_Action();

    // Propose.cpp
    /// Makes a model from what the packs are, to be read, edited and saved.
    void TexteProposer_Action();

    // Save.cpp
    void BtnSave_Pressed();
    /// Writes what the text area shows to the file of its view, after archiving the old one if the user wants that.
    void ActSaveFile();

    // Toggle.cpp
    void BtnEnabDis_Pressed();

    // Search.cpp
    void PushButtCherch_Pressed();
    void TextFieldCherch_Entered();
    void PushButtInitCherch_Pressed();
    /// The button's search, which finds what overlaps its last match, or the next and the previous match for the keys.
    enum class SearchWay { Button, Next, Previous };
    void Search(SearchWay way);

    // Choose.cpp
    /// `reveal` shows the present item in the file manager; else the user chooses another.
    void ActSelFichModel(bool reveal);
    void ActSelFichSpack(bool reveal);
    void ActSelArchivDoss(bool reveal);
    void BtnAffDoss_Pressed();

    // Display.cpp
    void PopMenuAff_SelectionChanged();
    /// Shows the document of the selected row.
    void AffArea();

private:
    // WinMain.cpp: the shell.
    void BindHandlers();
    void BindMenus();
    /// Brings the menus' items in line with what can be done now.
    void EnableMenus();
    void NameControls();
    /// Beeps, and shows a notice that the user closes.
    void Tell(StringView message, StringView explanation = {});
    void EnableControls(bool idle);
    void Event_Opening();
    [[nodiscard]] String StartFailure() const;
    void RefuseStart(StringView failure);
    bool Event_CancelClosing(bool appQuitting);
    bool Event_SessionEnding(const std::function<bool()>& mayAsk);
    /// Writes the preferences, once, before the program ends.
    void KeepSettings();
    void SegButtSpecA_Pressed();
    /// Opens the preferences; with Shift and Alt held down the folder that they lie in.
    void ApplePrefs_Action();

    // WinMainPreferences.cpp
    /// Brings the controls, the volume and the window's place in line with the preferences file.
    void PrefsCharger();
    /// Writes the preferences file from what the controls hold.
    void PrefsSauver() const;
    /// The settings as the controls and the application hold them.
    [[nodiscard]] Preferences ShownPreferences() const;

    // Run.cpp
    void BindRun();
    /// The second half of a run, wherever the model came from.
    void RunSuite(Fncts::Reading model);
    Fncts::Reading ReadFile(const std::optional<FolderItem>& file);
    /// The run itself; what came of it, in a sentence.
    String Reorder(SceneryTexts& texts, const FolderItem& dossier);
    /// Where the model comes from, in brackets.
    [[nodiscard]] String UsedSource() const;
    void EndRun();
    /// Does a step of the run; an exception ends the run.
    void InRun(const std::function<void()>& step);

    // Propose.cpp
    std::optional<std::vector<Pack>> LookAt(StringView text, const FolderItem& dossier);

    // Save.cpp
    /// What a file held when it was last read or written here, and the first run that read just that. The texts of
    /// earlier runs, which undoing leads to, were made from something else.
    struct Held {
        std::optional<std::size_t> fingerprint;
        Int64 sinceRun = 0;
    };
    /// What was saved where, in a sentence, or "".
    String Save();
    /// One question of a save: whether the user goes on.
    [[nodiscard]] bool AsksToContinue(StringView message, StringView button);
    /// The same about what can't be had back: the default is not to go on.
    [[nodiscard]] bool AsksToLose(StringView message, StringView button);
    /// Sets `folder` to where the old file is to be kept, or to nothing; false when the user gives up.
    [[nodiscard]] bool DecideOnArchive(const FolderItem& target, std::optional<FolderItem>& folder);
    [[nodiscard]] bool ConfirmsSave(const FolderItem& target);
    /// Asks when the file isn't what the text on screen was made from; once agreed to, `held` is what it is now.
    [[nodiscard]] bool ConfirmsChange(const FolderItem& target, Held& held);
    /// Copies the old file and sets `name` to what the copy is called; false when that failed and the user gives up.
    [[nodiscard]] bool Archive(const FolderItem& target, const FolderItem& folder, const DateTime& moment,
                               std::optional<String>& name);

    // Toggle.cpp
    /// Selects the line of the caret.
    void SelLigneEnt();

    // Search.cpp
    void BindSearch();
    /// Selects, and scrolls until that stands so many lines below the top.
    void ShowInText(const struct Selection& selection, Int64 lines);

    // TextMenu.cpp
    void BindTextMenu();
    void ShowLastReport();
    void MoveLines(bool down);
    void GoToMark(bool forward);
    void SearchFromAnywhere(SearchWay way);
    /// The folder that holds the file on screen; nothing, which was told, where there is none or no scenery text.
    [[nodiscard]] std::optional<FolderItem> SceneryFolder() const;
    void AddUnlistedFolders();
    void DisableWithoutFolder();

    // Choose.cpp
    using Chooser = std::optional<FolderItem> (*)(const FolderItem& start);
    std::optional<FolderItem> RevealOrChoose(const DesktopTextField& field, bool reveal, Chooser chooser) const;
    void BindPathFields();
    /// False, with the reason told, for a file that isn't taken.
    bool TakeModel(const FolderItem& item);
    void TakeSpack(const FolderItem& item);
    void TakeArchiveFolder(const FolderItem& item);

    // Display.cpp
    static constexpr int rowModel = 0, rowSource = 1, rowDest = 2;
    /// What is found in the text stands a few lines below the top, so that what comes before it is seen too.
    static constexpr Int64 linesAbove = 5;
    TextDocument& Document(int row) { return documents_.at(static_cast<std::size_t>(row)); }
    /// Hands the texts of a run over to the documents in these rows, each as one step that can be taken back.
    void ShowRun(const SceneryTexts& texts, std::initializer_list<int> rows, bool modelIsCleaned = false,
                 bool sourceIsCleaned = false);
    /// Empties documents for good, unless the user wants to keep what was edited there.
    bool Forget(std::initializer_list<int> rows);
    /// Whether the edits in these documents may go; asks only when there are any.
    bool AsksToLose(std::initializer_list<int> rows);
    /// Brings the status bar in line with the text on screen.
    void ShowStatus();
    /// The text and the line that the status bar told last.
    std::pair<const TextDocument*, Int64> placeTold_;
    /// After a press by the mouse the keyboard is the text's again; a button that the Tab key led to keeps it.
    void ReturnFocus(const DesktopUIControl& button);

    /// What had the focus before the controls were disabled.
    DesktopUIControl* focusWhenIdle_ = nullptr;
    std::map<std::filesystem::path, Held> asRead_;
    /// Counts the runs; their texts have it as the number of their origin.
    Int64 runs_ = 0;
    std::optional<PreferencesFile> prefsFile_;
    // The other windows, from an opening to the next.
    std::unique_ptr<WinAide> winAide_;
    std::unique_ptr<WinPrefs> winPrefs_;
    std::unique_ptr<WinSpecA> winSpecA_;
    /// What the last run reported, or why there was none.
    String lastReport_;
    /// What a press of the button stops: nothing, a run whose timer hasn't fired yet, or one that has begun.
    enum class RunState : std::uint8_t { None, Asked, Begun } run_ = RunState::None;
    /// Packs are being looked at; false stops it.
    bool DrapProposer = false;
};
