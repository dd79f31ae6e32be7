/// The state that the whole program shares. `Fncts` is the module of routines that all windows use; the headers beside
/// this one add them.
///
/// All of it belongs to the main thread.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

namespace Fncts {

/// The program is idle: menu items and controls are usable. False while a run, a treatment or a dialog is under way.
inline bool DrapMenu = false;
/// A dialog of DialogHelpers.h is up.
inline bool DrapDiagBox = false;
/// The program came up fully; only then are its settings worth saving.
inline bool AinitProg = false;
/// A removal of a tree failed while it was watched; nothing clears it.
inline bool ArretUrg = false;
/// Tooltips are wanted, by a line of the settings.
inline bool AffHelpTag = false;
/// The encoding of every text file that the program reads or writes.
inline constexpr TextEncoding DefAppEncod = Encodings::UTF8;
/// The data folder, or nothing when it can't be had.
inline std::optional<FolderItem> DossierPref;

/// Whether something was done; false with the reason, in the words of the system.
struct Outcome {
    String failure = {};
    explicit operator bool() const { return failure.empty(); }
};

} // namespace Fncts
