/// Questions about files and folders, and what the program does with whole folders.
#pragma once

#include "support/Fncts.h"

namespace Fncts {

/// The item at the same place, with an alias resolved if `followAlias` is set; nothing for an alias that leads nowhere
/// or to itself, and for a volume that doesn't exist.
std::optional<FolderItem> GetItemMoT_f(const std::optional<FolderItem>& item, bool followAlias);

/// Whether there is an item and it exists; with `checkAlias`, an alias must also lead to something that exists.
bool PasNil_Existe_Alias(const std::optional<FolderItem>& item, bool checkAlias);

/// Removes a file, or a folder with all that is in it; aliases inside go, what they lead to stays. The result is true
/// when anything is left over: what can't be removed keeps the folders beside it, not the files. With `watchStop` a
/// failure also sets `ArretUrg`, and nothing more is removed while that is set.
bool RemoveFileOrFolder(const FolderItem& item, bool watchStop);

/// A folder that is no package: a package is shown as one file by the platform.
bool DossPasPack_f(const FolderItem& item);

/// The name's extension with its dot: ".gz" of "a.tar.gz", "." of "a.", and "" of "a" and of ".bashrc".
String Extension_f(const FolderItem& item);

/// Shows the item selected in the file manager; a volume is opened there instead.
void RevealEltFinder(const FolderItem& item);

/// Opens a folder in the file manager, a link in the browser or the mail program. The user is told where there is none.
void Ouvrir(const FolderItem& item);
void SuivreLien(StringView url);

/// The folder that holds the application: the bundle's folder where the executable is in a bundle, else its own.
FolderItem RetDossCetApp(const FolderItem& executable = ExecutableFile());

/// Finds the data folder "fr.Kavesti.Tarnivel Datas" or makes it, bringing in what older versions kept elsewhere, and
/// stores it in `DossierPref`. Where there is none the failure names the place too. What could not be brought in is
/// told to the user and used where it is.
Outcome DefDossAppDataPref();

} // namespace Fncts
