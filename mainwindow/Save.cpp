#include "app/App.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/ArchiveName.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"
#include "support/TextHelpers.h"
#include "toolkit/Dialogs.h"

using namespace Localisation;

void WinMain::BtnSave_Pressed() { ActSaveFile(); }

/// One question of a save: whether the user goes on.
bool WinMain::AsksToContinue(StringView message, StringView button)
{
    Fncts::BeepNbT(1);
    return Fncts::MyDialogBox({.message = message, .btnAction = button, .btnCancel = Btn_Annuler(), .win = this}) == 1;
}

void WinMain::Tell(StringView message)
{
    Fncts::BeepNbT(1);
    Fncts::MyDialogBox({.message = message, .btnAction = Btn_Ok(), .win = this});
}

void WinMain::ActSaveFile()
{
    // The archive bears the moment at which the user asked, however long the questions take.
    const DateTime moment = DateTime::Now();
    const String text = TextAreaAff.Text();
    if ((text.empty() || BeginsWith(text, ErrorMarker)) && !AsksToContinue(Txt_TxtAreaPasScenPack(), Btn_Cont()))
        return;

    std::optional<FolderItem> archiveFolder;
    if (ChBoxArchiv.Value()) archiveFolder = Fncts::GetFitemAbsPath(TextFieldArchiv.Text(), false);
    const std::optional<FolderItem> target = SaveTarget();
    if (!target) return Tell(Txt_ImpLocDossSauvFich());

    SaveStep step = DecideOnArchive(archiveFolder, *target);
    if (step != SaveStep::Stop && !ConfirmsSave(*target)) step = SaveStep::Stop;
    if (step == SaveStep::Archive) step = Archive(*target, *archiveFolder, moment);
    if (step == SaveStep::Stop) return;
    if (Fncts::SauvFichier(*target, TextAreaAff.Text()))
        Fncts::PlayT(Fncts::_x_Msg::Msg());
    else
        Tell(Txt_ErreurEcrNouvScen());
}

/// The file that belongs to the view, or nothing where its field names none.
std::optional<FolderItem> WinMain::SaveTarget() const
{
    switch (PopMenuAff.SelectedRowIndex()) {
    case rowModel:
        return Fncts::GetFitemAbsPath(TextFieldMod1.Text(), false);
    case rowSource:
    case rowDest:
        return Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    default:
        Fncts::BeepNbT(3);
        MessageBox(U"Error ! Please contact the authors.\nPopMenuAff, Which Selection ?");
        return {};
    }
}

WinMain::SaveStep WinMain::DecideOnArchive(const std::optional<FolderItem>& archiveFolder, const FolderItem& target)
{
    if (!ChBoxArchiv.Value()) return SaveStep::Write;
    const auto withoutArchive = [this](const String& message) {
        return AsksToContinue(message, Btn_Cont()) ? SaveStep::Write : SaveStep::Stop;
    };
    if (!Fncts::PasNil_Existe_Alias(archiveFolder, true) || !Fncts::DossPasPack_f(*archiveFolder))
        return withoutArchive(Txt_ImpLocDossSauvAnc());
    if (!target.Exists()) return withoutArchive(Txt_PasAncFichAsauv());
    return SaveStep::Archive;
}

bool WinMain::ConfirmsSave(const FolderItem& target)
{
    const String question = Txt_SurSauv();
    return AsksToContinue(Fncts::FracTexte(question, 1) + PopMenuAff.SelectedRowText() + Fncts::FracTexte(question, 2) +
                              Fncts::AbsPath_f(target, true) + Fncts::FracTexte(question, 3),
                          Btn_SauvFichier());
}

WinMain::SaveStep WinMain::Archive(const FolderItem& target, const FolderItem& folder, const DateTime& moment)
{
    try {
        const auto copy = folder.Child(ArchiveName(target.Name(), Fncts::Extension_f(target), moment), false);
        target.CopyTo(copy.value());
        return SaveStep::Archive;
    } catch (const std::exception&) {
        return AsksToContinue(Txt_ErreurCopiAncScen(), Btn_Cont()) ? SaveStep::Write : SaveStep::Stop;
    }
}
