/// The three ways to ask the user something.
///
/// Each keeps the program quiet while the dialog is up: `DrapMenu` is false, and what it held comes back afterwards;
/// the other windows are covered while the dialog hangs on the window `win`, and the focus is put back. Without a
/// window, or with a hidden one, it stands alone and covers nothing.
#pragma once

#include "toolkit/core/FolderItem.h"

class DesktopWindow;

namespace Fncts {

/// By the platform's numbers.
enum class DialogIcon { Note = 0, Warning = 1, Failure = 2 };

struct Question {
    StringView message, explanation = {};
    /// Captions. The action button must have one; the two others are shown when they have one.
    StringView btnAction, btnCancel = {}, btnAlternate = {};
    DialogIcon icon = DialogIcon::Note;
    DesktopWindow* win = nullptr;
};

/// A question or a notice; the result is 1 for the action button, 2 for the cancel button, 3 for the alternate button
/// and 0 when the dialog was closed by other means.
/// Example: `MyDialogBox({.message = text, .btnAction = Btn_Cont(), .btnCancel = Btn_Annuler(), .win = this}) == 1`
Int16 MyDialogBox(const Question& question);

/// Lets the user choose a file; nothing when the user gave up. The chooser begins in the folder `start`, or in the
/// folder that holds the file `start`, which is selected, or in the user's documents. `filter` holds extensions as in
/// ".txt;.ini".
std::optional<FolderItem> MyDialogLoad(const std::optional<FolderItem>& start, StringView prompt, StringView filter,
                                       DesktopWindow* win);

/// Lets the user name a file to be written, `name` beside the documents at first; nothing when the user gave up.
std::optional<FolderItem> MyDialogSave(StringView name, StringView prompt, DesktopWindow* win);

/// Lets the user choose a folder; nothing when the user gave up. It begins where `MyDialogLoad` does.
std::optional<FolderItem> MyDialogFolder(const std::optional<FolderItem>& start, StringView prompt);

} // namespace Fncts
