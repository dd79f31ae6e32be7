/// The platform's modal dialogs.
#pragma once

#include "toolkit/core/FolderItem.h"

class DesktopWindow;

/// A question or a notice with up to three buttons. Texts are literal; what doesn't fit scrolls.
struct MessageDialog {
    /// Characters of a message or an explanation that are shown; of a longer one the whole lines before that, and "…".
    static constexpr Int64 MostShown = 1'000'000;

    /// The icons by their numbers: -1 none, 0 note, 1 caution, 2 stop, 3 question.
    int IconType = -1;
    String Message, Explanation;
    /// Enter presses the action button, Esc the cancel button. A button with no caption isn't shown, but for the action
    /// button.
    String ActionButton, CancelButton, AlternateActionButton;

    enum class Button { None = 0, Action = 1, Cancel = 2, Alternate = 3 };
    /// Shows the dialog and returns when it is answered; None when it was closed by other means. With a window it hangs
    /// on that window and blocks it; else it blocks the program.
    [[nodiscard]] Button ShowModal(DesktopWindow* window = nullptr) const;
};

/// Lets the user choose an existing file.
struct OpenFileDialog {
    String PromptText;
    std::optional<FolderItem> InitialFolder;
    /// Extensions with their dots, separated by ";", of the files that are offered first; empty for all files.
    String Filter;
    /// What the files that are offered first, and all files, are called.
    String FilterName{}, AllFilesName{};
    /// The file that is selected at first.
    std::optional<FolderItem> InitialFile{};

    /// Nothing when the user gave up. An alias is chosen as itself.
    [[nodiscard]] std::optional<FolderItem> ShowModal(DesktopWindow* window = nullptr) const;
};

/// Lets the user name a file to be written; one that exists is asked about.
struct SaveFileDialog {
    String PromptText;
    std::optional<FolderItem> InitialFolder;
    String SuggestedFileName;

    [[nodiscard]] std::optional<FolderItem> ShowModal(DesktopWindow* window = nullptr) const;
};

/// Lets the user choose a folder.
struct SelectFolderDialog {
    String PromptText;
    std::optional<FolderItem> InitialFolder;

    [[nodiscard]] std::optional<FolderItem> ShowModal(DesktopWindow* window = nullptr) const;
};

/// A plain notice with one button "OK", for what only a programming error or the platform can bring.
void MessageBox(StringView text);
