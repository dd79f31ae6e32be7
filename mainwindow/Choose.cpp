#include "app/App.h"
#include "app/FileTypes.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/PathForm.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

namespace {

void RevealOrRefuse(const std::optional<FolderItem>& item, bool checkAlias, StringView path)
{
    if (Fncts::PasNil_Existe_Alias(item, checkAlias))
        Fncts::RevealEltFinder(*item);
    else
        Fncts::Refuser(Localisation::Filled(Localisation::Dit_PasLa(), {path}));
}

std::optional<FolderItem> ChooseFile(const FolderItem& start)
{
    return Fncts::MyDialogLoad(start, Localisation::Txt_ChoisirUnFich(), FileTypes::TextPlain, nullptr);
}

std::optional<FolderItem> ChooseFolder(const FolderItem& start)
{
    return Fncts::MyDialogFolder(start, Localisation::Txt_ChoisirDossArchiv());
}

enum class Kind { TextFile, Folder };

/// Why what is dropped on a field for that kind of items can't be its item, or "".
String WhyRefused(const std::optional<FolderItem>& item, Kind kind)
{
    const std::optional<FolderItem> target = Fncts::GetItemMoT_f(item, true);
    if (item && !target) return Localisation::Dit_AliasMort();
    if (kind == Kind::Folder)
        return target && Fncts::DossPasPack_f(*target) ? String() : Localisation::Txt_DropQueDoss();
    const String extension = target ? Fncts::Extension_f(*target) : String();
    const bool mayBeText = target && !target->IsFolder() && (extension.empty() || App::ExtInFileType(extension));
    return mayBeText ? String() : Localisation::Txt_DropQueFichTxt();
}

/// Whether a field can keep the item; if not, the user is told.
bool IsKept(const FolderItem& item)
{
    const bool kept = Fncts::ComesBack(item);
    if (!kept) Fncts::Refuser(Localisation::Txt_NomNonGarde());
    return kept;
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
        RevealOrRefuse(present, true, field.Text());
        return {};
    }
    const std::optional<FolderItem> chosen = chooser(present.value_or(Fncts::RetDossCetApp()));
    return Fncts::PasNil_Existe_Alias(chosen, true) ? chosen : std::nullopt;
}

void WinMain::BindPathFields()
{
    const auto bind = [this](DesktopTextField& field, Kind kind, auto take) {
        field.Tidied = Fncts::PathOfTyped;
        field.TakesItem = [kind](const auto& item) { return WhyRefused(item, kind).empty(); };
        field.ItemDropped = [this, kind, take](const auto& item) {
            if (const String reason = WhyRefused(item, kind); !reason.empty()) return Fncts::Refuser(reason);
            (this->*take)(*item);
        };
    };
    bind(TextFieldMod1, Kind::TextFile, &WinMain::TakeModel);
    bind(TextFieldSpack, Kind::TextFile, &WinMain::TakeSpack);
    bind(TextFieldArchiv, Kind::Folder, &WinMain::TakeArchiveFolder);
    TextFieldMod2.Tidied = [](StringView text) { return String(text); };
    TextFieldMod2.Entered = [this] { RadGrpSrc.SetSelectedIndex(1); };
}

/// A new file: what a run made of the old one goes.
bool WinMain::TakeModel(const FolderItem& item)
{
    if (!IsKept(item) || !Forget({rowModel, rowDest})) return false;
    TextFieldMod1.SetText(Fncts::AbsPath_f(item, true));
    RadGrpSrc.SetSelectedIndex(0);
    return true;
}

void WinMain::TakeSpack(const FolderItem& item)
{
    if (!IsKept(item) || !Forget({rowSource, rowDest})) return;
    TextFieldSpack.SetText(Fncts::AbsPath_f(item, true));
}

/// Of an alias the folder that it leads to, which is where a save can put something.
void WinMain::TakeArchiveFolder(const FolderItem& item)
{
    const FolderItem folder = Fncts::GetItemMoT_f(item, true).value_or(item);
    if (IsKept(folder)) TextFieldArchiv.SetText(Fncts::AbsPath_f(folder, true));
}

void WinMain::BtnAffDoss_Pressed()
{
    ReturnFocus(BtnAffDoss);
    if (TextAreaAff.SelectionLength() == 0) SelLigneEnt();
    const String name(RetScenLigne(TextAreaAff.SelectedText()));
    if (name.empty()) return Fncts::Refuser(Localisation::Dit_PasDossier());
    std::optional<FolderItem> item = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    if (Fncts::PasNil_Existe_Alias(item, false)) {
        // A volume lies in no folder.
        const std::optional<FolderItem> folder = item->Parent();
        item = folder ? folder->Child(name, true) : std::nullopt;
    }
    RevealOrRefuse(item, false, name);
}
