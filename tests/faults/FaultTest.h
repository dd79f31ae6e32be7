/// What the tests of faults share: a main window that is about to save, archive and quit, or to treat a text, and the
/// files.
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

    /// Treats the original: the first variant goes over a file, the second one over a folder.
    void Treat()
    {
        app->TabSpecAorg = {U"", U"x"};
        app->TabSpecAdest1 = {U"one", U"1"};
        app->TabSpecAdest2 = {U"two", U"2"};
        app->PathSpecA = Fncts::AbsPath_f(FolderItem(original), true);
        WinSpecA special(*window, window->SegButtSpecA, window->TimerQuit);
        special.Show();
        // Goes on, and replaces whatever is there; the rest are notices.
        probe.Answers = {1, 3, 3, 3, 3, 3, 3};
        special.PushButtTrait_Pressed();
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
    const std::filesystem::path in = folder.Path() / "in", original = in / "original.txt", one = in / "one",
                                two = in / "two", target = folder.Path() / "Custom Scenery/scenery_packs.ini",
                                archives = folder.Path() / "archives",
                                preferences = folder.Path() / "data/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt";
    std::map<std::filesystem::path, std::string> before = {
        {target, old}, {preferences, oldPreferences}, {original, Lines('x')}, {one, "old"}, {two / "inner", "old"}};
};
