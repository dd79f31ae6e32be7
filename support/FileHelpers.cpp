#include "support/FileHelpers.h"

#include "support/Fncts.h"
#include "toolkit/Desktop.h"
#include "toolkit/DesktopApplication.h"
#include "toolkit/core/Exceptions.h"

namespace {

/// Removes an item; one that has vanished meanwhile is as good as removed.
void RemoveOne(const FolderItem& item)
{
    try {
        item.Remove();
    } catch (const IOException&) {
        if (item.Exists()) throw;
    }
}

/// Whether a file is left over, which doesn't keep its neighbours from being removed.
bool RemoveFile(const FolderItem& file, bool watchStop)
{
    try {
        RemoveOne(file);
        return file.Exists();
    } catch (const std::exception&) {
        if (watchStop) Fncts::ArretUrg = true;
        return true;
    }
}

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
        failed = RemoveFile(file, watchStop) || failed;
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
    try {
        const bool failed = item.IsFolder() && EmptyFolder(item, watchStop);
        RemoveOne(item);
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
