#include "app/App.h"
#include "localisation/Localisation.h"
#include "mainwindow/WinMain.h"
#include "packs/LookAtPack.h"
#include "support/AtEnd.h"
#include "support/DialogHelpers.h"
#include "support/PathForm.h"
#include "support/Status.h"
#include "support/TextFiles.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/core/System.h"

#include <chrono>
#include <functional>
#include <future>

using namespace Localisation;

void WinMain::TexteProposer_Action()
{
    const std::optional<FolderItem> spack = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    const Fncts::Reading reading = Fncts::LireFichier(spack);
    if (reading.cleanedLines > 0) Tell(Fncts::CleaningReport(reading, TextFieldSpack.Text()));
    const Acceptance source = AcceptSceneryText(reading.text);
    if (!source.accepted) return Fncts::Refuser(Filled(Dit_SpackRefuse(), {ReasonOfRefusal(reading.text)}));
    const std::optional<FolderItem> file = Fncts::MyDialogSave(U"modele.ini", Txt_ChoisirModele(), this);
    if (!file) return;
    const std::optional<std::vector<Pack>> packs = LookAt(source.text, *spack->Parent());
    if (!packs) return Fncts::Dire(Dit_PropArretee());
    if (Fncts::AbsPath_f(*file, true) != TextFieldMod1.Text() && !TakeModel(*file)) return;
    RadGrpSrc.SetSelectedIndex(0);

    const Proposal proposal = ProposeModel(source.text, *packs);
    Document(rowModel).ReplaceText(proposal.model, {}, {reading.cleanedLines > 0, runs_});
    PopMenuAff.SetSelectedRowIndex(rowModel);
    AffArea();
    TextAreaAff.SetFocus();
    Fncts::Dire({}); // what was said before
    Fncts::MyDialogBox({.message = Txt_PropFait(), .explanation = proposal.report, .btnAction = Btn_Ok(), .win = this});
}

/// Nothing when the user stopped it. The disk may keep another thread waiting, but never the window, unless the machine
/// has no thread to give.
std::optional<std::vector<Pack>> WinMain::LookAt(StringView text, const FolderItem& dossier)
{
    constexpr Int64 ticksUnseen = 30;
    constexpr std::chrono::milliseconds between(4);
    App::Current().EnableMenuBoutons(false);
    DrapProposer = true;
    const AtEnd idle([this] {
        DrapProposer = false;
        ProgressProposer.SetVisible(false);
        App::Current().EnableMenuBoutons(true);
    });
    Progress progress;
    auto packs = std::async(LookAtPacks, text, dossier, std::ref(progress));
    const Int64 start = System::Ticks();
    while (packs.wait_for(between) == std::future_status::timeout) {
        ProgressProposer.SetVisible(System::Ticks() - start >= ticksUnseen);
        const std::size_t all = std::max(progress.all.load(), std::size_t{1});
        ProgressProposer.SetValue(static_cast<int>(100 * std::min(progress.begun.load(), all) / all));
        DesktopApplication::YieldToUser();
        progress.stopped = !DrapProposer || DesktopApplication::EndRequested();
    }
    return progress.stopped ? std::nullopt : std::optional(packs.get());
}
