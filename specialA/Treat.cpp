#include "app/App.h"
#include "localisation/Localisation.h"
#include "specialA/WinSpecA.h"
#include "support/AtEnd.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"
#include "support/TextHelpers.h"
#include "toolkit/core/System.h"

#include <new>

using namespace Localisation;
using Fncts::DialogIcon;

void WinSpecA::EnableControls(bool idle)
{
    for (DesktopUIControl* control : std::initializer_list<DesktopUIControl*>{
             &PushButtSource, &TextFieldOrg, &TextFieldDest1, &TextFieldDest2, &ListboxRR, &PushButtAdd, &PushButtSupp,
             &PushButtQuit, &PushButtTrait})
        control->SetEnabled(idle);
}

Int16 WinSpecA::Ask(StringView message, StringView action, StringView cancel, DialogIcon icon)
{
    return Fncts::MyDialogBox(
        {.message = message, .btnAction = action, .btnCancel = cancel, .icon = icon, .win = this});
}

void WinSpecA::Tell(StringView message, DialogIcon icon)
{
    Fncts::BeepNbT(1);
    Ask(message, Btn_Ok(), {}, icon);
}

void WinSpecA::PushButtTrait_Pressed()
{
    CanvFocus.SetFocus();
    if (!FairePath()) return Tell(Txt_FichOrgNonDef());
    const AtEnd idleAgain([] { App::Current().EnableMenuBoutons(true); });
    App::Current().EnableMenuBoutons(false);
    try {
        TreatOriginal();
    } catch (const std::bad_alloc&) {
        Tell(Txt_ErreurEcritFich(), DialogIcon::Warning);
    }
}

void WinSpecA::TreatOriginal()
{
    const Fncts::Reading reading = Fncts::LireFichier(FichOrg);
    const String& original = reading.text;
    if (reading.cleanedLines > 0) {
        Fncts::BeepNbT(1);
        const String lost = Fncts::CleaningReport(reading, FichOrg->NativePath());
        if (Fncts::MyDialogBox(
                {.message = lost, .btnAction = Btn_Annuler(), .btnAlternate = Btn_Cont(), .win = this}) != 3)
            return;
    }
    FaireTab();
    const Treatment treated = TreatVisibly(original);
    if (Ask(Txt_NbTrouv() + treated.report, Btn_Cont(), Btn_Arreter()) != 1) return;
    WriteDestination(App::Current().TabSpecAdest1.front(), treated.dest1, original);
    WriteDestination(App::Current().TabSpecAdest2.front(), treated.dest2, original);
}

Treatment WinSpecA::TreatVisibly(StringView original)
{
    const App& app = App::Current();
    std::vector<ReplacementRow> rows;
    for (std::size_t i = 1; i < app.TabSpecAorg.size(); ++i)
        rows.push_back({app.TabSpecAorg[i], app.TabSpecAdest1[i], app.TabSpecAdest2[i]});

    const AtEnd gone([this] { ProgressTrait.SetVisible(false); });
    constexpr Int64 ticksUnseen = 30, ticksBetween = 3;
    const Int64 start = System::Ticks();
    Int64 last = start;
    return Treat(original, rows, [&](Int64 done, Int64 total) {
        const Int64 now = System::Ticks();
        if (now - last < ticksBetween) return;
        last = now;
        ProgressTrait.SetVisible(now - start >= ticksUnseen);
        ProgressTrait.SetValue(static_cast<int>(100 * done / total));
        DesktopApplication::YieldToPlatform();
    });
}

void WinSpecA::WriteDestination(StringView name, const std::optional<String>& text, StringView original)
{
    if (name.empty()) return;
    if (!text) return Tell(Txt_ErreurEcritFich(), DialogIcon::Warning);
    if (SameText(*text, original)) {
        Fncts::BeepNbT(1);
        if (Ask(Txt_FichPasModif(), Btn_Cont(), Btn_Arreter()) != 1) return;
    }
    const std::optional<FolderItem> target = FreeTarget(name);
    if (!target) return;
    if (!Fncts::SauvFichier(*target, *text)) return Tell(Txt_ErreurEcritFich(), DialogIcon::Warning);
    Fncts::PlayT(Fncts::_x_Msg::Msg());
}

std::optional<FolderItem> WinSpecA::FreeTarget(StringView name)
{
    const std::optional<FolderItem> folder = FichOrg->Parent();
    std::optional<FolderItem> target = folder ? folder->Child(name, false) : std::nullopt;
    if (!target) {
        // A name that no file can have, or that would lead out of the folder.
        Tell(Txt_ErreurEcritFich(), DialogIcon::Warning);
        return {};
    }
    if (!target->Exists()) return target;
    const String question = Txt_NomExiste();
    const String named = Fncts::FracTexte(question, 1) + String(name) + Fncts::FracTexte(question, 2);
    if (Ask(named, Btn_Remplacer(), Btn_NePasRempl()) != 1) return {};
    if (!Fncts::RemoveFileOrFolder(*target, false)) return target;
    Tell(Txt_Rempl_Imposs(), DialogIcon::Warning);
    return {};
}
