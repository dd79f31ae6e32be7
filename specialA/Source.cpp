#include "app/App.h"
#include "app/FileTypes.h"
#include "localisation/Localisation.h"
#include "specialA/WinSpecA.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

using namespace Localisation;

namespace {

/// The one file that was dropped, when it is a text file or an alias that leads to one.
std::optional<FolderItem> DroppedText(const DragItem& dragged)
{
    if (dragged.FolderItems.size() != 1 || !dragged.FolderItems.front().Exists()) return {};
    std::optional<FolderItem> item = Fncts::GetItemMoT_f(dragged.FolderItems.front(), true);
    if (!item || item->IsFolder() || !App::ExtInFileType(Fncts::Extension_f(*item))) return {};
    return item;
}

} // namespace

bool WinSpecA::FairePath()
{
    String& path = App::Current().PathSpecA;
    // What was away may be there again.
    if (!FichOrg) FichOrg = Fncts::GetFitemAbsPath(path, true);
    const bool usable = Fncts::PasNil_Existe_Alias(FichOrg, false) && !FichOrg->IsAlias();
    if (usable) path = Fncts::AbsPath_f(*FichOrg, true);
    const StringView lastName = NthField(path, U":", CountFields(path, U":"));
    StTextFichSource.SetText(path.empty() ? Txt_Attente() : path);
    TextFieldOrg.SetText(usable ? FichOrg->Name() : path.empty() ? Txt_Attente() : String(lastName));
    return usable;
}

void WinSpecA::ActButtSource(std::optional<FolderItem> item)
{
    if (!item) item = Fncts::MyDialogLoad(FichOrg, Txt_ChoisirUnFich(), FileTypes::TextPlain, this);
    if (!item) return;
    if (!Fncts::ComesBack(*item)) return Fncts::Refuser(Txt_NomNonGarde());
    if (item->IsFolder() || item->IsAlias())
        Tell(Txt_SelectQueFichTxt());
    else
        FichOrg = std::move(item);
    FairePath();
}

void WinSpecA::PushButtSource_Pressed()
{
    if (!Keyboard::AsyncShiftKey()) return ActButtSource({});
    if (Fncts::PasNil_Existe_Alias(FichOrg, false))
        Fncts::RevealEltFinder(*FichOrg);
    else
        Fncts::Refuser(Txt_FichOrgNonDef());
}

void WinSpecA::GroupBoxSource_DragEnter()
{
    AffCanvDrag(GroupBoxSource.Left(), GroupBoxSource.Top(), GroupBoxSource.Width(), GroupBoxSource.Height());
}

void WinSpecA::GroupBoxSource_DragExit() { AffCanvDrag(0, 0, -1, -1); }

void WinSpecA::GroupBoxSource_DropObject(const DragItem& item)
{
    AffCanvDrag(0, 0, -1, -1);
    if (!Fncts::DrapMenu) return Fncts::Refuser(Dit_Occupe());
    if (std::optional<FolderItem> dropped = DroppedText(item)) return ActButtSource(std::move(dropped));
    Tell(Txt_DropQueFichTxt());
}

void WinSpecA::AffCanvDrag(int left, int top, int width, int height)
{
    CanvDrag.SetVisible(width >= 0);
    CanvDrag.Place(left, top, width, height);
}
