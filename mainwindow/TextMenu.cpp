#include "app/App.h"
#include "engine/Folders.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/Sentences.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Status.h"

#include <algorithm>

using namespace Localisation;

void WinMain::BindTextMenu()
{
    MenuBar1& menus = App::Current().Menus;
    menus.TexteGenerer.Action = [this] { BtnRun_Pressed(); };
    menus.TexteRapport.Action = [this] { ShowLastReport(); };
    menus.TexteMonter.Action = [this] { MoveLines(false); };
    menus.TexteDescendre.Action = [this] { MoveLines(true); };
    menus.TexteDoubler.Action = [this] {
        if (!TextAreaAff.DoubleLines()) Fncts::Refuser(Dit_PasDeLigne());
    };
    menus.TexteSupprimer.Action = [this] {
        if (!TextAreaAff.DeleteLines()) Fncts::Refuser(Dit_PasDeLigne());
    };
    menus.TexteMarqueSuiv.Action = [this] { GoToMark(true); };
    menus.TexteMarquePrec.Action = [this] { GoToMark(false); };
    menus.TexteCherchSuiv.Action = [this] { SearchFromAnywhere(SearchWay::Next); };
    menus.TexteCherchPrec.Action = [this] { SearchFromAnywhere(SearchWay::Previous); };
    menus.TexteAjouter.Action = [this] { AddUnlistedFolders(); };
    menus.TexteDesactSansDoss.Action = [this] { DisableWithoutFolder(); };
}

void WinMain::EnableMenus()
{
    MenuBar1& menus = App::Current().Menus;
    for (DesktopMenuItem* const item : menus.WhenIdle())
        item->Enabled = Fncts::DrapMenu;
    // In another window the text that they change is out of sight. A run can be stopped too.
    for (DesktopMenuItem* const item : menus.OfText())
        item->Enabled = Active() && (Fncts::DrapMenu || item == &menus.TexteGenerer);
    for (DesktopMenuItem* const item : {&menus.TexteAjouter, &menus.TexteDesactSansDoss})
        item->Enabled = item->Enabled && PopMenuAff.SelectedRowIndex() != rowModel;
}

void WinMain::ShowLastReport()
{
    if (lastReport_.empty()) return Fncts::Dire(Dit_PasDeRapport());
    Fncts::MyDialogBox({.message = Menu_Rapport(), .explanation = lastReport_, .btnAction = Btn_Fermer(), .win = this});
}

void WinMain::MoveLines(bool down)
{
    if (!TextAreaAff.MoveLines(down, static_cast<Int64>(HeaderLines))) Fncts::Refuser(Dit_PasPlusLoin());
}

void WinMain::GoToMark(bool forward)
{
    TextAreaAff.SetFocus();
    const DesktopTextArea::Jump jump = TextAreaAff.GoToMark(forward, linesAbove);
    if (jump == DesktopTextArea::Jump::None) return Fncts::Refuser(Dit_AucuneMarque());
    if (jump == DesktopTextArea::Jump::Ahead)
        Fncts::Dire({});
    else
        Fncts::Dire(forward ? Dit_RepriseDebut() : Dit_RepriseFin());
    // Screen readers read out a line that an arrow key leads to, not that of another key.
    constexpr std::size_t mostCharacters = 200;
    SayUnseen(Unmatched() + U" : " + TextAreaAff.TextOfCaretLine().substr(0, mostCharacters));
}

void WinMain::SearchFromAnywhere(SearchWay way)
{
    const bool fromField = Focus() == &TextFieldCherch;
    Search(way);
    if (fromField) TextFieldCherch.SetFocus();
}

std::optional<FolderItem> WinMain::SceneryFolder() const
{
    const std::optional<FolderItem> file = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    std::optional<FolderItem> folder = file ? file->Parent() : std::nullopt;
    const bool isSceneryText = BeginsWith(TextAreaAff.Text(), TxtDebSpack);
    if (isSceneryText && folder && folder->IsFolder()) return folder;
    Fncts::Refuser(isSceneryText ? Dit_SansDossiers() : PopMenuAff.SelectedRowText() + U" : " + Dit_SansEntete());
    return {};
}

void WinMain::AddUnlistedFolders()
{
    const std::optional<FolderItem> folder = SceneryFolder();
    if (!folder) return;
    const String text = TextAreaAff.Text();
    auto [lines, leftOut] = FindUnlisted(text, *folder);
    const Int64 added = CountFields(lines, TxtEoF) - 1, place = FirstPlace(text);
    if (added > 0) {
        const bool needsEnd = Middle(text, place - 1, 1) != TxtEoF;
        if (needsEnd) lines.insert(0, TxtEoF);
        const Int64 length = std::ssize(lines);
        const TextChange change{place, 0, std::move(lines)};
        TextAreaAff.Change({&change, 1}, place, length);
        TextAreaAff.ScrollTo(place, linesAbove);
    }
    String sentence = Counted(added, Nb_Ajoutees());
    if (!leftOut.empty())
        sentence +=
            U". " + Filled(Txt_PropSansLigne(), {Join(std::vector<StringView>(leftOut.begin(), leftOut.end()), U", ")});
    Fncts::Dire(OnOneLine(sentence));
}

void WinMain::DisableWithoutFolder()
{
    const std::optional<FolderItem> folder = SceneryFolder();
    if (!folder) return;
    std::vector<TextChange> changes;
    for (const Int64 start : EnabledWithoutFolder(TextAreaAff.Text(), *folder))
        changes.push_back({start, std::ssize(EnabledPrefix), String(DisabledPrefix)});
    constexpr Int64 growth = std::ssize(DisabledPrefix) - std::ssize(EnabledPrefix);
    const auto moved = [&changes](Int64 offset) {
        return offset + growth * std::ranges::count_if(changes, [offset](const auto& c) { return c.start < offset; });
    };
    const Int64 start = TextAreaAff.SelectionStart(), end = start + TextAreaAff.SelectionLength();
    TextAreaAff.Change(changes, moved(start), moved(end) - moved(start));
    Fncts::Dire(Counted(std::ssize(changes), Nb_Modifiees()));
}
