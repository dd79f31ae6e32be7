#include "app/App.h"
#include "localisation/Localisation.h"
#include "specialA/WinSpecA.h"
#include "support/AtEnd.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "support/TextHelpers.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/System.h"

#include <new>

using namespace Localisation;
using Fncts::DialogIcon;

namespace {

/// A place beside the item where nothing is yet.
FolderItem PlaceBeside(const FolderItem& item)
{
    const FolderItem folder = *item.Parent();
    FolderItem place = item;
    for (Int64 number = 1; place.Exists(); ++number)
        place = *folder.Child(U".tarnivel-" + ToText(number), false);
    return place;
}

/// Writes the text to a new file, which takes the place of any old item once it is complete.
Fncts::Outcome PutInPlace(const FolderItem& target, StringView text)
{
    // What is written to a file replaces it whole; it would not replace a folder, and would follow an alias.
    if (!target.IsFolder() && !target.IsAlias()) return Fncts::SauvFichier(target, text);
    const FolderItem complete = PlaceBeside(target);
    if (Fncts::Outcome written = Fncts::SauvFichier(complete, text); !written) return written;
    if (Fncts::RemoveFileOrFolder(target, false)) {
        Fncts::RemoveFileOrFolder(complete, false);
        return {Txt_Rempl_Imposs()};
    }
    try {
        complete.Rename(target.Name());
        return {};
    } catch (const IOException& error) {
        return {complete.NativePath() + U'\n' + error.Message};
    }
}

} // namespace

void WinSpecA::EnableControls(bool idle)
{
    for (DesktopUIControl* control : std::initializer_list<DesktopUIControl*>{
             &PushButtSource, &TextFieldOrg, &TextFieldDest1, &TextFieldDest2, &ListboxRR, &PushButtAdd, &PushButtSupp,
             &PushButtQuit, &PushButtTrait})
        control->SetEnabled(idle);
}

bool WinSpecA::GoesOn(StringView message, StringView explanation)
{
    return Fncts::MyDialogBox({.message = message,
                               .explanation = explanation,
                               .btnAction = Btn_Cont(),
                               .btnCancel = Btn_Arreter(),
                               .win = this}) == 1;
}

bool WinSpecA::AsksToLose(StringView message, StringView keep, StringView lose)
{
    constexpr Int16 loses = 3;
    return Fncts::MyDialogBox({.message = message, .btnAction = keep, .btnAlternate = lose, .win = this}) == loses;
}

void WinSpecA::Tell(StringView message, DialogIcon icon, StringView explanation)
{
    Fncts::BeepNbT(1);
    Fncts::MyDialogBox(
        {.message = message, .explanation = explanation, .btnAction = Btn_Ok(), .icon = icon, .win = this});
}

void WinSpecA::PushButtTrait_Pressed()
{
    if (treats_) {
        stops_ = true;
        return;
    }
    CanvFocus.SetFocus();
    if (!FairePath()) return Tell(Txt_FichOrgNonDef());
    const AtEnd idleAgain([] { App::Current().EnableMenuBoutons(true); });
    App::Current().EnableMenuBoutons(false);
    try {
        TreatOriginal();
    } catch (const std::bad_alloc&) {
        Tell(Txt_MemoireManque(), DialogIcon::Warning);
    }
}

void WinSpecA::TreatOriginal()
{
    const Fncts::Reading reading = Fncts::LireFichier(FichOrg);
    if (!reading.failure.empty())
        return Tell(Txt_LectureImp(), DialogIcon::Warning, FichOrg->NativePath() + U'\n' + reading.failure);
    if (reading.cleanedLines > 0) {
        Fncts::BeepNbT(1);
        const String lost = Fncts::CleaningReport(reading, FichOrg->NativePath());
        if (!AsksToLose(lost, Btn_Annuler(), Btn_Cont())) return Fncts::Dire(Dit_RienEcrit());
    }
    FaireTab();
    const std::optional<Treatment> treated = TreatVisibly(reading.text);
    if (!treated) return Fncts::Dire(Dit_TraitArrete());
    if (!GoesOn(Txt_NbTrouv(), Middle(treated->report, 1))) return Fncts::Dire(Dit_RienEcrit());
    const App& app = App::Current();
    std::vector<StringView> written;
    for (const auto& [name, text] :
         {std::pair(&app.TabSpecAdest1.front(), &treated->dest1), {&app.TabSpecAdest2.front(), &treated->dest2}})
        if (WriteDestination(*name, *text, reading)) written.emplace_back(*name);
    Fncts::Dire(written.empty() ? Dit_RienEcrit()
                                : Filled(Dit_EcritDans(), {Join(written, U", "), FichOrg->Parent()->NativePath()}));
}

std::optional<Treatment> WinSpecA::TreatVisibly(StringView original)
{
    const App& app = App::Current();
    std::vector<ReplacementRow> rows;
    for (std::size_t i = 1; i < app.TabSpecAorg.size(); ++i)
        rows.push_back({app.TabSpecAorg[i], app.TabSpecAdest1[i], app.TabSpecAdest2[i]});

    constexpr Int64 ticksUnseen = 30, ticksBetween = 3;
    const Int64 start = System::Ticks();
    Int64 last = start;
    treats_ = true;
    stops_ = false;
    const AtEnd ended([this] {
        treats_ = false;
        ProgressTrait.SetVisible(false);
        PushButtTrait.SetCaption(Btn_Trait());
        PushButtTrait.SetEnabled(false);
    });
    return Treat(original, rows, [&](Int64 done, Int64 total) {
        const Int64 now = System::Ticks();
        if (now - last < ticksBetween) return true;
        last = now;
        if (now - start >= ticksUnseen && !ProgressTrait.Visible()) {
            ProgressTrait.SetVisible(true);
            PushButtTrait.SetCaption(Btn_Arreter());
            PushButtTrait.SetEnabled(true);
        }
        ProgressTrait.SetValue(static_cast<int>(100 * done / total));
        DesktopApplication::YieldToUser();
        return !stops_ && !DesktopApplication::EndRequested();
    });
}

bool WinSpecA::WriteDestination(StringView name, const std::optional<String>& text, const Fncts::Reading& original)
{
    if (name.empty()) return false;
    if (!text) {
        Tell(Filled(Txt_TropGrand(), {name}), DialogIcon::Warning);
        return false;
    }
    if (SameText(*text, original.text)) {
        Fncts::BeepNbT(1);
        if (!GoesOn(Txt_FichPasModif())) return false;
    }
    const std::optional<FolderItem> target = FichOrg->Parent()->Child(name, false);
    if (target && !MayReplace(*target, original)) return false;
    // A name that no file can have, or that would lead out of the folder, has no item.
    const Fncts::Outcome written = target ? PutInPlace(*target, *text) : Fncts::Outcome{String(name)};
    if (!written)
        Tell(Txt_ErreurEcritFich(), DialogIcon::Warning, written.failure);
    else
        Fncts::PlayT(Fncts::_x_Msg::Msg());
    return static_cast<bool>(written);
}

bool WinSpecA::MayReplace(const FolderItem& target, const Fncts::Reading& original)
{
    if (!target.Exists()) return true;
    const auto replaces = [this](const String& question) {
        return AsksToLose(question, Btn_NePasRempl(), Btn_Remplacer());
    };
    if (!replaces(Filled(Txt_NomExiste(), {target.Name()}))) return false;
    std::error_code none; // a disk may not tell upper from lower case
    if (!target.IsAlias() && std::filesystem::equivalent(target.Path(), FichOrg->Path(), none))
        return replaces(Filled(Txt_RemplOriginal(), {target.Name()})) &&
               (Fncts::LireFichier(FichOrg).fingerprint == original.fingerprint ||
                replaces(Filled(Txt_FichierChange(), {Fncts::AbsPath_f(target, true)})));
    const Int64 items = target.IsFolder() ? std::ssize(target.Children()) : 0;
    return items == 0 || replaces(Filled(Txt_DossierPlein(), {target.Name(), ToText(items)}));
}
