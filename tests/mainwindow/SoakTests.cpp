#include "tests/mainwindow/MainWindowTest.h"

#include <unistd.h>

namespace {

/// Bytes of memory that belong to this process alone, and its open files.
std::pair<std::size_t, std::ptrdiff_t> Held()
{
    std::size_t total = 0, resident = 0, shared = 0;
    std::ifstream("/proc/self/statm") >> total >> resident >> shared;
    const std::ptrdiff_t files = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    return {(resident - shared) * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)), files};
}

TEST_F(MainWindow, SoakOfFiveHundredRoundsLeavesNothingBehind)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr int last = 100; // memory that was given back is kept for a while, and counted
#else
    constexpr int last = 500;
#endif
    std::string model = header, source = header;
    for (int pack = 0; pack < 300; ++pack) {
        model += "SCENERY_PACK Custom Scenery/" + std::to_string(pack) + "/\n";
        source += "SCENERY_PACK Custom Scenery/" + std::to_string(300 - pack) + "/\n";
    }
    const FolderItem modelFile(folder.File("model.ini", model)),
        sourceFile(folder.File("Custom Scenery/scenery_packs.ini", source));
    Open("Archiv Old File :@: True\nTabSpecAorg :@: model.ini\tscenery\nTabSpecAdest1 :@: a\tx\nPathSpecA :@: " +
         Encodings::UTF8.Encode(Fncts::AbsPath_f(modelFile, true)) + "\n");
    std::pair<std::size_t, std::ptrdiff_t> before;
    for (int round = 0; round < last && !HasFailure(); ++round) {
        if (round == 50) before = Held();
        // Its history begins anew, and what the old one held is given back.
        window->TextFieldMod1.ItemDropped(modelFile);
        window->TextFieldSpack.ItemDropped(sourceFile);
        Run();
        window->TextAreaAff.Select(0, std::ssize(window->TextAreaAff.Text()));
        window->BtnEnabDis_Pressed();
        std::filesystem::remove_all(folder.Path() / "archives"); // two of one second would have one name
        Choose(window->TextFieldArchiv, folder.Folder("archives"));
        window->BtnSave_Pressed();
        window->TextFieldCherch.SetText(U"299");
        window->PushButtCherch_Pressed();
        for (const bool opens : {true, false}) {
            window->SegButtSpecA.SetSelected(0, opens);
            window->SegButtSpecA.Pressed(0);
            if (opens) dynamic_cast<WinSpecA&>(*DesktopWindow::All().back()).PushButtTrait_Pressed();
        }
        for (auto* const record : {&probe.Asked, &probe.Said, &probe.Sounds})
            record->clear();
    }
    const auto [bytes, files] = Held();
    EXPECT_EQ(files, before.second);
    EXPECT_TRUE(bytes < before.first + before.first / 20 || last < 500) << before.first << " bytes, then " << bytes;
    EXPECT_TRUE(folder.Content("a").starts_with("I\n1000 version\nx\nx_PACK")) << "each round has done its work";
}

} // namespace
