#include "support/FileHelpers.h"

#include "support/Fncts.h"
#include "toolkit/Desktop.h"
#include "toolkit/DesktopApplication.h"

namespace {

/// Removes what is in a folder; whether anything is left of it.
bool EmptyFolder(const FolderItem& folder, bool watchStop)
{
    std::vector<FolderItem> files, folders;
    for (const FolderItem& child : folder.Children()) {
        DesktopApplication::YieldToPlatform();
        (child.IsFolder() ? folders : files).push_back(child);
    }
    bool failed = false;
    for (const FolderItem& file : files) {
        DesktopApplication::YieldToPlatform();
        file.Remove();
        failed = failed || file.Exists();
    }
    files.clear();
    for (const FolderItem& subfolder : folders) {
        DesktopApplication::YieldToPlatform();
        failed = failed || Fncts::RemoveFileOrFolder(subfolder, watchStop);
    }
    return failed;
}

} // namespace

namespace Fncts {

std::optional<FolderItem> GetItemMoT_f(const std::optional<FolderItem>& item, bool followAlias)
{
    if (!item || !followAlias || !item->IsAlias()) return item;
    const auto parent = item->Parent();
    const auto target = parent ? parent->Child(item->Name(), true) : std::nullopt;
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
    try {
        const bool failed = item.IsFolder() && EmptyFolder(item, watchStop);
        item.Remove();
        return failed || item.Exists();
    } catch (const std::exception&) {
        if (watchStop) ArretUrg = true;
        return true;
    }
}

bool IsPackage_f(const FolderItem& item) { return IsPackage(item); }

bool DossPasPack_f(const FolderItem& item) { return item.IsFolder() && !IsPackage_f(item); }

String Extension_f(const FolderItem& item)
{
    const String name = item.Name();
    const std::vector<StringView> fields = Split(name, U".");
    if (fields.size() < 2 || (fields.size() == 2 && fields.front().empty())) return {};
    return U"." + String(fields.back());
}

void RevealEltFinder(const FolderItem& item)
{
    if (item.Parent())
        RevealItem(item);
    else if (DossPasPack_f(item))
        OpenItem(item);
}

FolderItem RetDossCetApp() { return FolderOfApplication(ExecutableFile()); }

FolderItem FolderOfApplication(const FolderItem& executable)
{
    const auto above = [](const FolderItem& item) { return item.Parent().value_or(item); };
    const FolderItem folder = above(executable);
    const FolderItem contents = above(folder);
    const bool isBundle = SameText(folder.Name(), U"MacOS") && SameText(contents.Name(), U"Contents");
    return isBundle ? above(above(contents)) : folder;
}

} // namespace Fncts
