#include "support/FileHelpers.h"

#include "localisation/Localisation.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/core/Exceptions.h"

#include <algorithm>

namespace Fncts {

std::optional<FolderItem> GetItemMoT_f(const std::optional<FolderItem>& item, bool followAlias)
{
    if (!item) return item;
    const auto parent = item->Parent();
    if (!parent) return item->Exists() ? item : std::nullopt;
    if (!followAlias || !item->IsAlias()) return item;
    const auto target = parent->Child(item->Name(), true);
    const bool leadsSomewhere = target && target->Exists() && target->URLPath() != item->URLPath();
    return leadsSomewhere ? target : std::nullopt;
}

bool PasNil_Existe_Alias(const std::optional<FolderItem>& item, bool checkAlias)
{
    if (!item || !item->Exists()) return false;
    return !checkAlias || GetItemMoT_f(item, true);
}

bool RemoveFileOrFolder(const FolderItem& item, bool watchStop)
{
    if (watchStop && ArretUrg) return true;
    bool failed = false;
    std::vector<FolderItem> children = item.IsFolder() ? item.Children() : std::vector<FolderItem>();
    std::stable_partition(children.begin(), children.end(), [](const FolderItem& child) { return !child.IsFolder(); });
    for (const FolderItem& child : children) {
        DesktopApplication::YieldToPlatform();
        if (failed && child.IsFolder()) break;
        failed = RemoveFileOrFolder(child, watchStop) || failed;
    }
    try {
        item.Remove();
    } catch (const IOException&) {
        // One that has vanished meanwhile is as good as removed.
        if (item.Exists() && watchStop) ArretUrg = true;
    }
    return item.Exists();
}

bool DossPasPack_f(const FolderItem& item) { return item.IsFolder() && !IsPackage(item); }

String Extension_f(const FolderItem& item)
{
    const String name = item.Name();
    const auto lastDot = name.rfind(U'.');
    return lastDot == 0 || lastDot == name.npos ? U"" : name.substr(lastDot);
}

void RevealEltFinder(const FolderItem& item)
{
    if (item.Parent())
        RevealItem(item, [] { Refuser(Localisation::Dit_PasGestionnaire()); });
    else if (DossPasPack_f(item))
        Ouvrir(item);
}

void Ouvrir(const FolderItem& item)
{
    if (!OpenItem(item)) Refuser(Localisation::Dit_PasGestionnaire());
}

void SuivreLien(StringView url)
{
    if (!System::GotoURL(url)) Refuser(Localisation::Filled(Localisation::Dit_PasDeLien(), {url}));
}

FolderItem RetDossCetApp(const FolderItem& executable)
{
    const auto above = [](const FolderItem& item) { return item.Parent().value_or(item); };
    const FolderItem folder = above(executable);
    const FolderItem contents = above(folder);
    const bool isBundle = SameText(folder.Name(), U"MacOS") && SameText(contents.Name(), U"Contents");
    return isBundle ? above(above(contents)) : folder;
}

} // namespace Fncts
