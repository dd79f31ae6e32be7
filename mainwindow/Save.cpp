#include "app/App.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/ArchiveName.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "support/TextFiles.h"
#include "support/TextHelpers.h"

using namespace Localisation;

void WinMain::BtnSave_Pressed()
{
    ReturnFocus(BtnSave);
    ActSaveFile();
}

bool WinMain::AsksToContinue(StringView message, StringView button)
{
    Fncts::BeepNbT(1);
    return Fncts::MyDialogBox({.message = message, .btnAction = button, .btnCancel = Btn_Annuler(), .win = this}) == 1;
}

bool WinMain::AsksToLose(StringView message, StringView button)
{
    constexpr Int16 goesOn = 3;
    Fncts::BeepNbT(1);
    return Fncts::MyDialogBox({.message = message, .btnAction = Btn_Annuler(), .btnAlternate = button, .win = this}) ==
           goesOn;
}

void WinMain::ActSaveFile()
{
    const String done = Save();
    Fncts::Dire(done.empty() ? Dit_PasEnregistre() : done);
}

String WinMain::Save()
{
    // The archive bears the moment at which the user asked, however long the questions take.
    const DateTime moment = DateTime::Now();
    const String text = TextAreaAff.Text();
    // No text, an error text, or one whose header an edit has damaged.
    if (!BeginsWith(text, TxtDebSpack) && !AsksToLose(Txt_TxtAreaPasScenPack(), Btn_Cont())) return {};
    const DesktopTextField& field = PopMenuAff.SelectedRowIndex() == rowModel ? TextFieldMod1 : TextFieldSpack;
    const std::optional<FolderItem> target = Fncts::GetFitemAbsPath(field.Text(), false);
    if (!target) return Tell(Txt_ImpLocDossSauvFich()), String();

    const auto read = asRead_.find(target->Path());
    Held held = read != asRead_.end() ? read->second : Held{Fncts::LireFichier(*target).fingerprint};
    std::optional<FolderItem> archiveFolder;
    if (!DecideOnArchive(*target, archiveFolder) || !ConfirmsSave(*target) || !ConfirmsChange(*target, held)) return {};
    std::optional<String> archived;
    if (archiveFolder && !Archive(*target, *archiveFolder, moment, archived)) return {};
    // The copying and its question took their time.
    if (!ConfirmsChange(*target, held)) return {};
    if (const Fncts::Outcome written = Fncts::SauvFichier(*target, text); !written)
        return Tell(Txt_ErreurEcrNouvScen(), target->NativePath() + U"\n" + written.failure), String();
    asRead_[target->Path()] = {Fncts::TextOfBytes(Fncts::DefAppEncod.Encode(text)).fingerprint};
    Document(PopMenuAff.SelectedRowIndex()).SetSaved();
    Fncts::PlayT(Fncts::_x_Msg::Msg());
    String sentence = Filled(Dit_Enregistre(), {Fncts::AbsPath_f(*target, true)});
    if (archived) sentence += U" ; " + Filled(Dit_Archive(), {*archived});
    return sentence;
}

bool WinMain::DecideOnArchive(const FolderItem& target, std::optional<FolderItem>& folder)
{
    if (!ChBoxArchiv.Value()) return true;
    folder = Fncts::GetFitemAbsPath(TextFieldArchiv.Text(), false);
    const bool usable = Fncts::PasNil_Existe_Alias(folder, true) && Fncts::DossPasPack_f(*folder);
    if (usable && target.Exists()) return true;
    folder.reset();
    if (usable) return AsksToContinue(Txt_PasAncFichAsauv(), Btn_Cont());
    return AsksToLose(Txt_ImpLocDossSauvAnc(), Btn_Cont());
}

bool WinMain::ConfirmsSave(const FolderItem& target)
{
    const String sure = Filled(Txt_SurSauv(), {PopMenuAff.SelectedRowText(), Fncts::AbsPath_f(target, true)});
    if (!AsksToContinue(sure, Btn_SauvFichier())) return false;
    const bool isCleaned = Document(PopMenuAff.SelectedRowIndex()).Origin().cleaned;
    return !isCleaned || AsksToLose(Txt_SauvTexteAbime(), Btn_SauvFichier());
}

bool WinMain::ConfirmsChange(const FolderItem& target, Held& held)
{
    if (!target.Exists()) return true;
    const auto present = Fncts::LireFichier(target).fingerprint;
    const Int64 run = Document(PopMenuAff.SelectedRowIndex()).Origin().number;
    if (present == held.fingerprint && run >= held.sinceRun) return true;
    held = {present};
    return AsksToLose(Filled(Txt_FichierChange(), {Fncts::AbsPath_f(target, true)}), Btn_SauvFichier());
}

bool WinMain::Archive(const FolderItem& target, const FolderItem& folder, const DateTime& moment,
                      std::optional<String>& name)
{
    try {
        const String wanted = ArchiveName(target.Name(), Fncts::Extension_f(target), moment);
        target.CopyTo(folder.Child(wanted, false).value());
        name = wanted;
        return true;
    } catch (const std::exception& error) {
        const String reason = Fncts::DefAppEncod.Decode(error.what());
        return AsksToLose(Txt_ErreurCopiAncScen() + U"\n" + reason, Btn_Cont());
    }
}
