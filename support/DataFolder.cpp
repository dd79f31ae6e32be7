#include "localisation/Localisation.h"
#include "support/FileHelpers.h"
#include "toolkit/Dialogs.h"
#include "toolkit/core/Exceptions.h"

#include <cerrno>

namespace {

namespace fs = std::filesystem;

constexpr StringView folderName = U"fr.Kavesti.Tarnivel Datas", olderFolder = U"Tarnivel",
                     oldestFile = U"Tarnivel Prefs.txt";

/// Moves an item to a place where nothing is yet, by way of a copy where that is on another file system.
void MoveAnywhere(const FolderItem& item, const FolderItem& place)
{
    try {
        return item.MoveTo(place);
    } catch (const IOException& error) {
        if (error.ErrorNumber != EXDEV) throw;
    }
    // Complete before it has its name: half a copy would pass for all of it.
    const fs::path copy = place.Path().native() + ".part";
    fs::remove_all(copy);
    try {
        fs::copy(item.Path(), copy, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    } catch (...) {
        fs::remove_all(copy);
        throw;
    }
    fs::rename(copy, place.Path());
    Fncts::RemoveFileOrFolder(item, false);
}

/// Takes over what an older version kept; if that fails it is told, and the result is false.
bool TakeOver(const FolderItem& item, const FolderItem& place)
{
    try {
        MoveAnywhere(item, place);
        return true;
    } catch (const std::exception& error) {
        const String reason = Fncts::DefAppEncod.Decode(error.what());
        MessageBox(Localisation::Filled(Localisation::Txt_PrefsNonReprises(), {item.NativePath(), reason}));
        return false;
    }
}

/// Makes the data folder from what older versions kept among the preferences, or empty if they kept nothing; the folder
/// to be used. What could not be taken over is used where it is, and the next start tries anew. What is no folder or no
/// file there but a link isn't theirs.
FolderItem MakeDataFolder(const FolderItem& dataFolder)
{
    const auto preferences = SpecialFolder::Preferences();
    const auto older = preferences ? preferences->Child(olderFolder, false) : std::nullopt;
    if (older && older->IsFolder()) return TakeOver(*older, dataFolder) ? dataFolder : *older;
    fs::create_directory(dataFolder.Path());
    const auto oldest = preferences ? preferences->Child(oldestFile, false) : std::nullopt;
    if (!oldest || !fs::is_regular_file(fs::symlink_status(oldest->Path())) ||
        TakeOver(*oldest, dataFolder.Child(oldestFile).value()))
        return dataFolder;
    fs::remove(dataFolder.Path());
    return *preferences;
}

} // namespace

Fncts::Outcome Fncts::DefDossAppDataPref()
{
    DossierPref.reset();
    const auto applicationData = SpecialFolder::ApplicationData();
    const auto dataFolder = applicationData ? applicationData->Child(folderName) : std::nullopt;
    if (!dataFolder) return {U"There is no home folder, or nothing can be made in it."};
    try {
        // A link that leads nowhere may be waiting for its disk.
        const auto link = applicationData->Child(folderName, false);
        const bool isMissing = !dataFolder->Exists() && !link->IsAlias();
        const FolderItem folder = isMissing ? MakeDataFolder(*dataFolder) : *dataFolder;
        if (!folder.IsFolder()) throw SystemError(folder.Exists() ? ENOTDIR : ENOENT);
        DossierPref = folder;
        return {};
    } catch (const std::exception& error) {
        return {dataFolder->NativePath() + U"\n" + DefAppEncod.Decode(error.what())};
    }
}
