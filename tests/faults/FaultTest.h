/// What the tests of faults share: a main window that is about to save, archive and quit, and its files.
#pragma once

#include "tests/faults/FileFaults.h"
#include "tests/mainwindow/MainWindowTest.h"

#include <map>

/// A file of some 9 KB whose lines begin with `letter`.
inline std::string Lines(char letter, int count = 500)
{
    std::string lines = header;
    for (int line = 0; line < count; ++line)
        lines += letter + std::string("CENERY_PACK ") + letter + std::to_string(line) + "/\n";
    return lines;
}

class FaultTest : public MainWindow {
protected:
    /// Brings the files back to how they are before each attempt.
    void Reset() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            std::filesystem::remove_all(entry);
        folder.Folder(archives);
        for (const auto& [path, content] : before)
            folder.File(path, content);
    }

    void OpenAndFill()
    {
        Reset();
        Open();
        Choose(window->TextFieldSpack, target);
        Choose(window->TextFieldArchiv, archives);
        window->ChBoxArchiv.SetValue(true);
        window->TextAreaAff.SetText(Encodings::UTF8.Decode(fresh));
    }

    std::vector<std::string> Archives() const
    {
        std::vector<std::string> contents;
        for (const auto& archive : std::filesystem::directory_iterator(archives))
            contents.push_back(folder.Content(archive.path()));
        return contents;
    }

    /// What is in the folder of a file beside it.
    static std::ptrdiff_t Leftovers(const std::filesystem::path& file)
    {
        return std::distance(std::filesystem::directory_iterator(file.parent_path()), {}) - 1;
    }

    const std::string old = Lines('o'), fresh = Lines('n', 450);
    const std::string oldPreferences = "Volume Sonore :@: 7\nNo such key :@: " + std::string(2000, 'x') + "\n";
    const std::filesystem::path target = folder.Path() / "Custom Scenery/scenery_packs.ini";
    const std::filesystem::path archives = folder.Path() / "archives";
    const std::filesystem::path preferences = folder.Path() / "data/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt";
    std::map<std::filesystem::path, std::string> before = {{target, old}, {preferences, oldPreferences}};
};
