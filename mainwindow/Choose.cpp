#include "app/FileTypes.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "toolkit/Desktop.h"

namespace {

void RevealOrBeep(const std::optional<FolderItem>& item, bool checkAlias)
{
    if (Fncts::PasNil_Existe_Alias(item, checkAlias))
        Fncts::RevealEltFinder(*item);
    else
        Fncts::BeepNbT(1);
}

std::optional<FolderItem> ChooseFile(const FolderItem& start)
{
    return Fncts::MyDialogLoad(start, Localisation::Txt_ChoisirUnFich(), FileTypes::TextPlain.Extensions, nullptr,
                               true);
}

std::optional<FolderItem> ChooseFolder(const FolderItem& start)
{
    return Fncts::MyDialogFolder(start, Localisation::Txt_ChoisirDossArchiv(), nullptr, true);
}

} // namespace

void WinMain::ActSelFichModel(bool reveal)
{
    if (const auto chosen = RevealOrChoose(TextFieldMod1, reveal, ChooseFile)) TakeModel(*chosen);
}

void WinMain::ActSelFichSpack(bool reveal)
{
    if (const auto chosen = RevealOrChoose(TextFieldSpack, reveal, ChooseFile)) TakeSpack(*chosen);
}

void WinMain::ActSelArchivDoss(bool reveal)
{
    if (const auto chosen = RevealOrChoose(TextFieldArchiv, reveal, ChooseFolder)) TakeArchiveFolder(*chosen);
}

/// Shows the field's item in the file manager, or lets the user choose another. The result is the choice.
std::optional<FolderItem> WinMain::RevealOrChoose(const DesktopTextField& field, bool reveal, Chooser chooser) const
{
    const std::optional<FolderItem> present = Fncts::GetFitemAbsPath(field.Text(), false);
    if (reveal) {
        RevealOrBeep(present, true);
        return {};
    }
    const std::optional<FolderItem> chosen = chooser(present.value_or(Fncts::RetDossCetApp()));
    return Fncts::PasNil_Existe_Alias(chosen, true) ? chosen : std::nullopt;
}

/// What `take` does with an item that was dropped or pasted; for an alias that leads nowhere a beep.
std::function<void(const FolderItem& item)> WinMain::IfUsable(void (WinMain::*take)(const FolderItem& item))
{
    return [this, take](const FolderItem& item) {
        if (Fncts::PasNil_Existe_Alias(item, true))
            (this->*take)(item);
        else
            Fncts::BeepNbT(1);
    };
}

/// A new file: what a run made of the old one goes.
void WinMain::TakeModel(const FolderItem& item)
{
    if (Forget({rowModel, rowDest})) TextFieldMod1.SetText(Fncts::AbsPath_f(item, true));
}

void WinMain::TakeSpack(const FolderItem& item)
{
    if (Forget({rowSource, rowDest})) TextFieldSpack.SetText(Fncts::AbsPath_f(item, true));
}

void WinMain::TakeArchiveFolder(const FolderItem& item) { TextFieldArchiv.SetText(Fncts::AbsPath_f(item, true)); }

void WinMain::BtnAffDoss_Pressed()
{
    ReturnFocus(BtnAffDoss);
    if (TextAreaAff.SelectionLength() == 0) SelLigneEnt();
    const String name(RetScenLigne(TextAreaAff.SelectedText()));
    if (name.empty()) return Fncts::BeepNbT(1);
    std::optional<FolderItem> item = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    if (Fncts::PasNil_Existe_Alias(item, false)) {
        // A volume lies in no folder.
        const std::optional<FolderItem> folder = item->Parent();
        item = folder ? folder->Child(name, true) : std::nullopt;
    }
    RevealOrBeep(item, false);
}
