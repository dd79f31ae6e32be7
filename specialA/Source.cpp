#include "app/App.h"
#include "app/FileTypes.h"
#include "localisation/Localisation.h"
#include "specialA/WinSpecA.h"
#include "support/DialogHelpers.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "toolkit/Desktop.h"

using namespace Localisation;

namespace {

/// The one file that was dropped, when it is a text file or an alias that leads to one.
std::optional<FolderItem> DroppedText(const DragItem& dragged)
{
    if (dragged.FolderItems.size() != 1 || !dragged.FolderItems.front().Exists()) return {};
    std::optional<FolderItem> item = Fncts::GetItemMoT_f(dragged.FolderItems.front(), true);
    if (!item || item->IsAlias() || item->IsFolder() || !App::ExtInFileType(Fncts::Extension_f(*item))) return {};
    return item;
}

} // namespace

bool WinSpecA::FairePath()
{
    const bool usable = Fncts::PasNil_Existe_Alias(FichOrg, false) && !FichOrg->IsAlias();
    // A label of the toolkit shows "&" as it stands: nothing is doubled here.
    App::Current().PathSpecA = usable ? Fncts::AbsPath_f(*FichOrg, true) : String();
    StTextFichSource.SetText(usable ? App::Current().PathSpecA : Txt_Attente());
    const String name = usable ? FichOrg->Name() : Txt_Attente();
    if (TextFieldOrg.Text() != name) TextFieldOrg.SetText(name);
    return usable;
}

void WinSpecA::ActButtSource(std::optional<FolderItem> item)
{
    if (!item) {
        std::optional<FolderItem> start;
        if (FichOrg) start = FichOrg->IsFolder() ? Fncts::GetItemMoT_f(FichOrg, false) : FichOrg->Parent();
        item = Fncts::MyDialogLoad(start, Txt_ChoisirUnFich(), FileTypes::TextPlain.Extensions, this, true);
        if (!item) return;
    }
    if (item->IsFolder() || item->IsAlias()) {
        Fncts::BeepNbT(1);
        Tell(Txt_SelectQueFichTxt(), 0);
    } else {
        FichOrg = Fncts::GetItemMoT_f(item, false);
    }
    FairePath();
}

void WinSpecA::PushButtSource_Pressed()
{
    if (!Keyboard::AsyncShiftKey()) return ActButtSource({});
    if (Fncts::PasNil_Existe_Alias(FichOrg, false))
        Fncts::RevealEltFinder(*FichOrg);
    else
        Fncts::BeepNbT(1);
}

bool WinSpecA::GroupBoxSource_DragEnter()
{
    const auto points = [](int length) { return static_cast<Int16>(length); };
    AffCanvDrag(points(GroupBoxSource.Left()), points(GroupBoxSource.Top()), points(GroupBoxSource.Width()),
                points(GroupBoxSource.Height()));
    return false;
}

void WinSpecA::GroupBoxSource_DragExit() { AffCanvDrag(0, 0, -1, -1); }

void WinSpecA::GroupBoxSource_DropObject(const DragItem& item)
{
    AffCanvDrag(0, 0, -1, -1);
    if (!Fncts::DrapMenu) return Fncts::BeepNbT(1);
    if (std::optional<FolderItem> dropped = DroppedText(item)) return ActButtSource(std::move(dropped));
    Fncts::BeepNbT(1);
    Tell(Txt_DropQueFichTxt(), 0);
}

void WinSpecA::AffCanvDrag(Int16 left, Int16 top, Int16 width, Int16 height)
{
    const bool hides = width < 0 || height < 0;
    if (hides) {
        CanvDrag.SetVisible(false);
        CanvDrag.Refresh();
    }
    constexpr int parkedSize = 20, parkedTop = 2;
    CanvDrag.SetLeft(hides ? PushButtSource.Left() + PushButtSource.Width() - parkedSize : left);
    CanvDrag.SetTop(hides ? parkedTop : top);
    CanvDrag.SetWidth(hides ? parkedSize : width);
    CanvDrag.SetHeight(hides ? parkedSize : height);
    if (!hides) CanvDrag.SetVisible(true);
}
