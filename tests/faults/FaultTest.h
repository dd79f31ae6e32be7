/// What the tests of faults share: a main window that is about to save, archive and quit, and its files.
#pragma once

#include "tests/faults/FileFaults.h"
#include "tests/mainwindow/MainWindowTest.h"

#include <algorithm>
#include <map>

/// A file of some 9 KB whose lines begin with `letter`.
inline std::string Lines(char letter, int count = 500)
{
    std::string lines;
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

    /// The new text came so far, and what follows is not replaced yet, or not yet cut off.
    bool IsUnderWay(const std::string& content) const
    {
        const auto came = static_cast<std::size_t>(std::ranges::mismatch(content, fresh).in1 - content.begin());
        return came == content.size() || content.substr(came) == old.substr(came) || IsBlankAfter(content, fresh);
    }

    static bool IsBlankAfter(const std::string& content, const std::string& text)
    {
        return content.starts_with(text) && content.find_first_not_of('\n', text.size()) == content.npos;
    }

    const std::string old = Lines('o'), fresh = Lines('n', 450);
    const std::string oldPreferences = "Volume Sonore :@: 7\nNo such key :@: " + std::string(2000, 'x') + "\n";
    const std::filesystem::path target = folder.Path() / "Custom Scenery/scenery_packs.ini";
    const std::filesystem::path archives = folder.Path() / "archives";
    const std::filesystem::path preferences = folder.Path() / "data/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt";
    std::map<std::filesystem::path, std::string> before = {{target, old}, {preferences, oldPreferences}};
};
