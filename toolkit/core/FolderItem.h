/// The place of a file or folder, whether it exists or not.
#pragma once

#include "toolkit/core/Text.h"

#include <filesystem>
#include <optional>
#include <vector>

/// A value: copying it copies the place, never the file.
///
/// An item stands for the name itself: for an alias (a symbolic link) `Exists`, `IsFolder` and `Name` speak of the
/// link, not of what it leads to. Folders above the item are followed by the operating system as usual. A
/// question that the file system doesn't answer (no permission, a name that is too long) is answered with no; acts on a
/// file raise IOException where they say so.
class FolderItem {
public:
    /// A slash at the end is dropped.
    explicit FolderItem(std::filesystem::path absolutePath);

    /// The existing item that a native absolute path, one from the home folder ("~/…") or a "file://" address names.
    static std::optional<FolderItem> Named(StringView text);

    /// Drive 0 is the root of the file system, drives 1 and up are the children of the folder of volumes in the order
    /// of `Children`, read anew at each call.
    static std::vector<FolderItem> Drives();

    /// The folder in which the platform shows further volumes ("/Volumes"), or nothing where it doesn't exist.
    static std::optional<FolderItem> VolumesFolder();
    /// Lets a test put a folder of its own in the place of "/Volumes"; nothing brings the platform's back.
    static void SetVolumesFolder(std::optional<std::filesystem::path> folder);

    /// The name as text: "Linux" for the root on Linux. Bytes that are no UTF-8 show as U+FFFD.
    [[nodiscard]] String Name() const;

    /// The item of that name on disk in this folder, which need not exist; nothing for a name that no item can have
    /// ("", ".", "..", with a "/" or a NUL inside). Where the exact name isn't there, an entry that is equal in
    /// canonical form is taken. With `followAlias` an alias is replaced by what it leads to in the end, even if nothing
    /// is there; aliases that go round in a circle stay as they are.
    [[nodiscard]] std::optional<FolderItem> Child(StringView name, bool followAlias = true) const;

    /// All items of the folder by name, case ignored, aliases not resolved; one pass over the folder.
    /// Empty for what is no folder or can't be read.
    [[nodiscard]] std::vector<FolderItem> Children() const;

    /// The folder above; nothing for a drive's root.
    [[nodiscard]] std::optional<FolderItem> Parent() const;

    /// What an alias leads to in the end, even if nothing is there; the item itself where it is no alias, or one of a
    /// circle.
    [[nodiscard]] FolderItem Original() const;

    [[nodiscard]] bool Exists() const;
    [[nodiscard]] bool IsFolder() const;
    /// True for a folder, and for an alias that leads to one in the end.
    [[nodiscard]] bool LeadsToFolder() const;
    [[nodiscard]] bool IsAlias() const;
    [[nodiscard]] bool IsReadable() const;
    /// False for a name that begins with a dot.
    [[nodiscard]] bool Visible() const;

    /// "file://" and the percent-encoded path: one text for one place.
    [[nodiscard]] String URLPath() const;
    /// The path with "/" between names.
    [[nodiscard]] String NativePath() const;
    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Raises IOException where nothing can be made in the folder.
    void CheckWritable() const;
    /// Makes the folder, and those above it that are missing. Whether it worked is seen by `Exists`.
    void CreateFolder() const;
    /// Moves the item into `folder` under its own name, or to the place `folder` itself where nothing is there yet.
    ///
    /// An item that is already at the new place is never replaced: that raises IOException, as does every other
    /// failure, and the item then stays where it was. An alias is moved as it is; one to a folder counts as that folder
    /// when it is the goal. Nothing goes to another volume.
    void MoveTo(const FolderItem& folder) const;
    /// Gives the item another name in its folder, under the rules of `MoveTo`.
    void Rename(StringView newName) const;
    /// Copies the content of the file (of an alias: of the file behind it) to a new file, which gets its permissions
    /// and has reached the file system on return. Raises IOException, also where something is there already: that is
    /// never replaced. Nothing is left of a copy that failed.
    void CopyTo(const FolderItem& copy) const;
    /// Removes a file, an alias or an empty folder. Raises IOException, also when there was nothing to remove.
    void Remove() const;

private:
    static bool IsPossibleName(StringView name);

    std::filesystem::path path_;
};

/// Places that the platform sets aside for each user; nothing when there is none (no home folder, a full disk).
namespace SpecialFolder {
/// Where programs keep their data; it is made when the user's account doesn't have it yet.
std::optional<FolderItem> ApplicationData();
std::optional<FolderItem> Preferences();
/// Nothing also where the user has removed it.
std::optional<FolderItem> Documents();
} // namespace SpecialFolder

/// The file of the running program.
FolderItem ExecutableFile();

/// The folder of the program's sounds and translations: beside the program, in "share" or in the bundle.
std::optional<FolderItem> ResourceFolder();

namespace Fncts {
/// Swaps ":" and "/" in a file name. A name on disk may hold ":", which the path form needs between names.
///
/// With `toPath` the name comes from the disk and each ":" becomes "/"; `normalise` also brings it to the canonical
/// form. Otherwise the name goes to the disk, each "/" becomes ":", and `normalise` has no effect.
String Naff(StringView name, bool toPath, bool normalise);
} // namespace Fncts
