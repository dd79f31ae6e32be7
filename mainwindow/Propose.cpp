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
    if (!Fncts::ComesBack(*file)) return Fncts::Refuser(Txt_NomNonGarde());
    const std::optional<std::vector<Pack>> packs = LookAtPacks(LinesToPropose(source.text, *spack->Parent()), *spack);
    if (!packs) return Fncts::Dire(Dit_PropArretee());

    const Proposal proposal = ProposeModel(source.text, *packs);
    TextFieldMod1.SetText(Fncts::AbsPath_f(*file, true));
    RadGrpSrc.SetSelectedIndex(0);
    Document(rowModel).ReplaceText(proposal.model, {}, reading.cleanedLines > 0);
    PopMenuAff.SetSelectedRowIndex(rowModel);
    AffArea();
    TextAreaAff.SetFocus();
    Fncts::Dire({}); // what was said before
    Fncts::MyDialogBox({.message = Txt_PropFait(), .explanation = proposal.report, .btnAction = Btn_Ok(), .win = this});
}

/// Nothing when the user stopped it.
std::optional<std::vector<Pack>> WinMain::LookAtPacks(std::span<const String> lines, const FolderItem& spack)
{
    constexpr Int64 ticksUnseen = 30, ticksBetween = 3;
    App::Current().EnableMenuBoutons(false);
    DrapProposer = true;
    const AtEnd idle([this] {
        DrapProposer = false;
        ProgressProposer.SetVisible(false);
        App::Current().EnableMenuBoutons(true);
    });
    PackFolders folders(*spack.Parent());
    std::vector<Pack> packs;
    const Int64 start = System::Ticks();
    Int64 last = start;
    for (const String& line : lines) {
        packs.push_back({line, folders.LookAt(line)});
        const Int64 now = System::Ticks();
        if (now - last < ticksBetween) continue;
        last = now;
        ProgressProposer.SetVisible(now - start >= ticksUnseen);
        ProgressProposer.SetValue(static_cast<int>(100 * packs.size() / lines.size()));
        DesktopApplication::YieldToUser();
        if (!DrapProposer || DesktopApplication::EndRequested()) return {};
    }
    return packs;
}
