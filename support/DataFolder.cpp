#include "support/Diagnostics.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "toolkit/core/Exceptions.h"

namespace {

constexpr StringView folderName = U"fr.Kavesti.Tarnivel Datas", olderFolder = U"Tarnivel",
                     oldestFile = U"Tarnivel Prefs.txt";

/// Brings an item of an older version to its new place, or leaves it where it is if it can't be moved: to another file
/// system, or to where a name is taken. The program can start without it.
void MoveIfPossible(const FolderItem& item, const FolderItem& folder)
{
    try {
        item.MoveTo(folder);
    } catch (const IOException&) {
        return;
    }
}

/// Makes the data folder from what older versions kept among the preferences, or empty if they kept nothing.
void MakeDataFolder(const FolderItem& dataFolder, const FolderItem& applicationData, const FolderItem& preferences)
{
    if (const auto older = preferences.Child(olderFolder); older && older->Exists()) {
        MoveIfPossible(*older, applicationData);
        if (const auto moved = applicationData.Child(olderFolder); moved && moved->Exists()) moved->Rename(folderName);
        if (!dataFolder.Exists()) dataFolder.CreateFolder();
        return;
    }
    dataFolder.CreateFolder();
    if (const auto file = preferences.Child(oldestFile); file && file->Exists() && dataFolder.Exists())
        MoveIfPossible(*file, dataFolder);
}

std::optional<FolderItem> FindDataFolder()
{
    const auto applicationData = SpecialFolder::ApplicationData();
    if (!Fncts::PasNil_Existe_Alias(applicationData, true)) return std::nullopt;
    auto dataFolder = applicationData->Child(folderName);
    if (!dataFolder || dataFolder->Exists()) return dataFolder;

    const auto preferences = SpecialFolder::Preferences();
    if (Fncts::PasNil_Existe_Alias(preferences, true))
        MakeDataFolder(*dataFolder, *applicationData, *preferences);
    else
        dataFolder->CreateFolder();
    return dataFolder->Exists() ? dataFolder : std::nullopt;
}

} // namespace

bool Fncts::DefDossAppDataPref()
{
    try {
        DossierPref = FindDataFolder();
        return PasNil_Existe_Alias(DossierPref, true);
    } catch (const std::exception&) {
        BeepNbT(3);
        TellAuthorsShortly(U"DefDossAppDataPref, problem while creating Preferences folder!");
        return false;
    }
}
