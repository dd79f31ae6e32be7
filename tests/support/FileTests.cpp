#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/Probe.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

TEST(Removal, LeavesWhatAliasesLeadToAndAFailureStopsTheWatchedOnes)
{
    const TemporaryFolder disk;
    for (const char* name : {"outside/kept", "tree/a", "tree/.b", "tree/c\xFF", "tree/d\n", "tree/e/f/g", "tree/h/i"})
        disk.File(name, "x");
    fs::create_directory_symlink(disk.Path() / "outside", disk.Path() / "tree/e/folder alias");
    fs::create_symlink("nowhere", disk.Path() / "tree/dead");
    const FolderItem tree(disk.Path() / "tree"), file(disk.Path() / "outside/kept");
    // Not even the superuser removes these.
    const FolderItem fixed("/proc/self/status"), fixedFolder("/proc/self/fdinfo");
    EXPECT_FALSE(Fncts::RemoveFileOrFolder(tree, true));
    EXPECT_FALSE(fs::exists(tree.Path()));
    EXPECT_FALSE(Fncts::RemoveFileOrFolder(tree, true)) << "what has gone is removed";
    EXPECT_TRUE(Fncts::RemoveFileOrFolder(fixed, false));
    EXPECT_FALSE(Fncts::ArretUrg);
    for (const FolderItem& item : {fixed, fixedFolder}) {
        Fncts::ArretUrg = false;
        EXPECT_TRUE(Fncts::RemoveFileOrFolder(item, true) && Fncts::ArretUrg) << item.Path();
    }
    EXPECT_TRUE(Fncts::RemoveFileOrFolder(file, true));
    EXPECT_EQ(disk.Content("outside/kept"), "x");
    EXPECT_FALSE(Fncts::RemoveFileOrFolder(file, false));
    Fncts::ArretUrg = false;
}

TEST(Extension, IsWhatFollowsTheLastDot)
{
    const std::pair<const char*, StringView> rows[] = {
        {"a", U""}, {".bashrc", U""}, {"a.b.c", U".c"}, {"a.", U"."}, {"..a", U".a"}};
    for (const auto& [name, extension] : rows)
        EXPECT_EQ(Fncts::Extension_f(FolderItem(fs::path("/folder.d") / name)), extension) << name;
}

TEST(Application, IsInTheFolderOfTheBundleOrOfTheExecutable)
{
    EXPECT_EQ(Fncts::RetDossCetApp(FolderItem("/Apps/T.app/Contents/MacOS/T")).Path(), "/Apps");
    EXPECT_EQ(Fncts::RetDossCetApp(FolderItem("/opt/bin/tarnivel")).Path(), "/opt/bin");
    EXPECT_EQ(Fncts::RetDossCetApp(FolderItem("/")).Path(), "/") << "no folder is left above";
    EXPECT_EQ(Fncts::RetDossCetApp().Path(), fs::read_symlink("/proc/self/exe").parent_path());
}

TEST(Revealing, OpensAVolumeAndShowsAllElseInItsFolder)
{
    const Probe probe;
    for (const char* place : {"/", "/proc"})
        Fncts::RevealEltFinder(FolderItem(place));
    EXPECT_EQ(probe.Opened, std::vector<String>{U"/"});
    EXPECT_EQ(probe.Revealed, std::vector<String>{U"/proc"});
}

/// A user's home of its own.
class DataFolder : public ::testing::Test {
protected:
    DataFolder()
    {
        ::setenv("HOME", home_.Path().c_str(), 1);
        ::setenv("XDG_DATA_HOME", home_.Folder("data").c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", home_.Folder("config").c_str(), 1);
    }
    ~DataFolder() override { Fncts::DossierPref.reset(); }

    TemporaryFolder home_;
    const fs::path folder_ = home_.Path() / "data/fr.Kavesti.Tarnivel Datas";
    Probe probe_;
};

TEST_F(DataFolder, IsMadeAndFilledWithWhatOlderVersionsKept)
{
    const std::pair<const char*, const char*> rows[] = {
        {"config/Tarnivel/Tarnivel Prefs.txt", "Tarnivel Prefs.txt"},
        {"config/Tarnivel Prefs.txt", "Tarnivel Prefs.txt"},
        {"data/fr.Kavesti.Tarnivel Datas/mine", "mine"},
        {"config/Other Prefs.txt", "../../config/Other Prefs.txt"},
        {"data/Tarnivel/Tarnivel Prefs.txt", "../../data/Tarnivel/Tarnivel Prefs.txt"},
    };
    for (const auto& [before, after] : rows) {
        home_.File(before, before);
        EXPECT_TRUE(Fncts::DefDossAppDataPref()) << before;
        EXPECT_EQ(Fncts::DossierPref->Path(), folder_);
        EXPECT_EQ(home_.Content(folder_ / after), before);
        EXPECT_FALSE(fs::exists(home_.Path() / "config/Tarnivel"));
        fs::remove_all(folder_);
    }
    fs::remove_all(home_.Path() / "config");
    EXPECT_TRUE(Fncts::DefDossAppDataPref()) << "no folder of preferences";
}

TEST_F(DataFolder, OlderDataComeFromAnotherFileSystemWhole)
{
    // The temporary folders lie on another file system than this one, where there are two.
    const TemporaryFolder elsewhere("/dev/shm");
    ::setenv("XDG_CONFIG_HOME", elsewhere.Path().c_str(), 1);
    elsewhere.File("Tarnivel/sub/file", "older");
    EXPECT_TRUE(Fncts::DefDossAppDataPref());
    EXPECT_EQ(home_.Content(folder_ / "sub/file"), "older");
    fs::remove_all(folder_);
    elsewhere.File("Tarnivel Prefs.txt", "oldest");
    EXPECT_TRUE(Fncts::DefDossAppDataPref());
    EXPECT_EQ(home_.Content(folder_ / "Tarnivel Prefs.txt"), "oldest");
    EXPECT_TRUE(fs::is_empty(elsewhere.Path()) && probe_.Asked.empty());
}

TEST_F(DataFolder, WhatIsNoFolderOrFileOfOursIsLeftAlone)
{
    const fs::path old = home_.Path() / "config/Tarnivel", oldest = home_.Path() / "config/Tarnivel Prefs.txt";
    const std::tuple<const char*, fs::path, std::function<void()>> rows[] = {
        {"a plain file in the folder's place", old, [&] { home_.File(old, "foreign"); }},
        {"a link in the folder's place", old, [&] { fs::create_symlink(home_.Folder("foreign"), old); }},
        {"a dead link", oldest, [&] { fs::create_symlink("nowhere", oldest); }},
        {"a folder in the file's place", oldest, [&] { fs::create_directories(oldest); }},
    };
    for (const auto& [name, place, prepare] : rows) {
        prepare();
        EXPECT_TRUE(Fncts::DefDossAppDataPref()) << name;
        EXPECT_TRUE(fs::exists(fs::symlink_status(place))) << name;
        EXPECT_EQ(home_.Content(folder_ / "Tarnivel Prefs.txt"), "") << name;
        fs::remove_all(folder_);
        fs::remove_all(place);
    }
    home_.File("data/Tarnivel Prefs.txt", "one folder for both");
    ::setenv("XDG_CONFIG_HOME", (home_.Path() / "data").c_str(), 1);
    EXPECT_TRUE(Fncts::DefDossAppDataPref());
    EXPECT_EQ(home_.Content(folder_ / "Tarnivel Prefs.txt"), "one folder for both");
    EXPECT_TRUE(probe_.Asked.empty());
}

TEST_F(DataFolder, WithNoPlaceForItThereIsNone)
{
    const auto failsAt = [](const fs::path& place) {
        return Fncts::DefDossAppDataPref().failure.starts_with(place.u32string() + U"\n") && !Fncts::DossierPref;
    };
    home_.File(folder_, "a file in its place");
    EXPECT_TRUE(failsAt(folder_));
    EXPECT_EQ(home_.Content(folder_), "a file in its place");
    fs::remove(folder_);
    const fs::path unmounted = home_.Path() / "an unmounted disk";
    fs::create_symlink(unmounted, folder_);
    EXPECT_TRUE(failsAt(unmounted) && !fs::exists(unmounted));
    ::setenv("XDG_DATA_HOME", home_.File("a file above").c_str(), 1);
    EXPECT_FALSE(Fncts::DefDossAppDataPref());
}

} // namespace
