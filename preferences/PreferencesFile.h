/// The preferences file on disk.
#pragma once

#include "preferences/Preferences.h"
#include "support/TextFiles.h"

/// Read once at the start and written once at the end, by each of the copies of the program that run.
class PreferencesFile {
public:
    /// Reads the file of that folder, as far as it can be read. A folder in which nothing can be made is told at once,
    /// and nothing will be written there.
    explicit PreferencesFile(const FolderItem& folder);

    /// What the file says; the defaults where there is none.
    [[nodiscard]] const Preferences& Settings() const { return read_.settings; }
    /// How many lines were passed over.
    [[nodiscard]] int Refused() const { return read_.refused; }

    /// To be called at the start with the settings as the program shows them.
    void ShownAs(Preferences shown) { shown_ = std::move(shown); }

    /// Writes the settings, unless they are those of the start and a file is there. What other programs have changed
    /// since then stays. A file that can't be read, or that holds what no settings file holds, is kept under another
    /// name.
    [[nodiscard]] Fncts::Outcome Write(const Preferences& settings) const;

private:
    struct Read {
        Preferences settings;
        /// How the lines were that lost characters, and what ended the reading early.
        Fncts::Reading reading;
        int refused = 0;

        [[nodiscard]] bool IsWhole() const { return reading.failure.empty() && reading.cleanedLines + refused == 0; }
    };
    static Read ReadFile(const FolderItem& file);
    /// A name beside the file that nothing has yet, for what can't stay as it is.
    [[nodiscard]] String FreeName() const;
    void TellProblem(const Read& read) const;

    FolderItem file_;
    Read read_;
    Preferences shown_;
    bool isWritable_ = true;
};
