/// The main window of a program that lives as long as the test.
#pragma once

#include "app/App.h"
#include "mainwindow/WinMain.h"
#include "specialA/WinSpecA.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/Probe.h"

#include <chrono>
#include <gtest/gtest.h>

inline constexpr const char* header = "I\n1000 version\nSCENERY\n";

/// Its data folder is in a temporary place, and dialogs are answered by `probe`.
class MainWindow : public testing::Test {
protected:
    MainWindow()
    {
        setenv("XDG_DATA_HOME", folder.Folder("data").c_str(), 1);
        Fncts::DrapMenu = Fncts::AinitProg = false;
        probe.ScreenSize = {{1280, 800}};
    }

    void Open(std::string_view preferences = {})
    {
        if (!preferences.empty()) folder.File("data/fr.Kavesti.Tarnivel Datas/Tarnivel Prefs.txt", preferences);
        app.emplace(argc, argv);
        window.emplace();
        window->Show();
    }

    void Choose(DesktopTextField& field, const std::filesystem::path& file) const
    {
        field.SetText(Fncts::AbsPath_f(FolderItem(file), false));
    }

    /// Runs over files of these contents.
    void Run(std::string_view model, std::string_view source)
    {
        Choose(window->TextFieldMod1, folder.File("model", model));
        Choose(window->TextFieldSpack, folder.File("Custom Scenery/source", source));
        Run();
    }

    void Run()
    {
        window->BtnRun_Pressed();
        EXPECT_FALSE(Fncts::DrapMenu);
        EXPECT_EQ(window->BtnRun.Caption(), U"Arrêter");
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!Fncts::DrapMenu && std::chrono::steady_clock::now() < deadline)
            DesktopApplication::YieldToPlatform();
        ASSERT_TRUE(Fncts::DrapMenu);
        EXPECT_EQ(window->BtnRun.Caption(), U"Générer");
    }

    String View(int row)
    {
        window->PopMenuAff.SetSelectedRowIndex(row);
        window->PopMenuAff_SelectionChanged();
        return window->TextAreaAff.Text();
    }

    TemporaryFolder folder;
    Probe probe;
    char program[8] = "tests", *argv[2] = {program, nullptr};
    int argc = 1;
    std::optional<App> app;
    std::optional<WinMain> window;
};
