#include "support/PathForm.h"

#include "toolkit/DesktopApplication.h"

namespace {

/// From the volume that the system started from down to the item, whatever volume holds it.
String PathFromBootVolume(const FolderItem& item, bool folderMark)
{
    String path = Fncts::Naff(item.Name(), true, true);
    if (folderMark && item.IsFolder()) path += U':';
    for (auto folder = item.Parent(); folder; folder = folder->Parent())
        path.insert(0, Fncts::Naff(folder->Name(), true, true) + U':');
    return path;
}

/// The names on disk, the volume's first; at least one, which is empty for an empty path.
std::vector<String> NamesOfPath(StringView path)
{
    if (path.ends_with(U':')) path.remove_suffix(1);
    const String canonical = CanonicalForm(path);
    std::vector<String> names;
    for (const StringView name : Split(canonical, U":"))
        names.push_back(Fncts::Naff(name, false, false));
    return names;
}

/// The visible and readable drives of that name.
std::vector<FolderItem> DrivesNamed(const String& name)
{
    std::vector<FolderItem> drives;
    for (Int64 index = 0; const FolderItem& drive : FolderItem::Drives()) {
        DesktopApplication::YieldToPlatform();
        const String driveName = CanonicalForm(drive.Name());
        // macOS keeps its swap files on a drive of its own, which is no place for files.
        const bool holdsSwapFiles = index++ == 1 && SameText(driveName, U"vm");
        if (SameText(driveName, name) && drive.Visible() && drive.IsReadable() && !holdsSwapFiles)
            drives.push_back(drive);
    }
    return drives;
}

/// Where the folders lead to from a drive, or nothing where one is missing.
std::optional<FolderItem> Walk(FolderItem item, std::span<const String> folders)
{
    for (const String& name : folders) {
        DesktopApplication::YieldToPlatform();
        const auto child = item.Child(name, false);
        if (!child || !child->Exists()) return std::nullopt;
        item = *child;
    }
    return item;
}

} // namespace

namespace Fncts {

String AbsPath_f(const FolderItem& item, bool folderMark)
{
    String path = PathFromBootVolume(item, folderMark);
    const auto volumes = FolderItem::VolumesFolder();
    if (!volumes) return path;
    const String StUpDiskVol = PathFromBootVolume(*volumes, false) + U':';
    if (!path.starts_with(StUpDiskVol)) return path;
    // The folder of volumes itself, a hidden volume or one that shares its name has no shorter path.
    const StringView shorter = StringView(path).substr(StUpDiskVol.size());
    const auto found = GetFitemAbsPath(shorter, false);
    return found && PathFromBootVolume(*found, folderMark) == path ? String(shorter) : path;
}

std::optional<FolderItem> GetFitemAbsPath(StringView path, bool followAlias)
{
    const std::vector<String> names = NamesOfPath(path);
    if (names.front().empty()) return std::nullopt;
    const bool isDrive = names.size() == 1;
    const auto folders = std::span(names).subspan(1, isDrive ? 0 : names.size() - 2);

    std::optional<FolderItem> chosen;
    for (const FolderItem& drive : DrivesNamed(names.front())) {
        if (isDrive) return drive;
        const auto folder = Walk(drive, folders);
        const auto item = folder ? folder->Child(names.back(), false) : std::nullopt;
        if (!item) continue;
        if (!chosen || item->Exists()) chosen = folder->Child(names.back(), followAlias);
        if (item->Exists()) break;
    }
    return chosen;
}

bool ComesBack(const FolderItem& item)
{
    const auto found = GetFitemAbsPath(AbsPath_f(item, true), false);
    return found && found->Path() == item.Path();
}

String PathOfTyped(StringView text)
{
    const auto item = FolderItem::Named(text);
    return item && ComesBack(*item) ? AbsPath_f(*item, true) : String(text);
}

} // namespace Fncts
