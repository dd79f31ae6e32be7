#include "preferences/PreferencesFile.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class File : public testing::Test {
protected:
    /// A copy of the program that shows what it has read.
    PreferencesFile Start(std::string_view content)
    {
        if (!content.empty()) folder.File(name, content);
        PreferencesFile file(FolderItem(folder.Path()));
        file.ShownAs(file.Settings());
        return file;
    }
    static Preferences WithVolume(Int16 volume)
    {
        Preferences settings;
        settings.volume = volume;
        return settings;
    }
    [[nodiscard]] Preferences Written() const { return PreferencesFile(FolderItem(folder.Path())).Settings(); }

    const TemporaryFolder folder;
    Probe probe;
    const fs::path name = "Tarnivel Prefs.txt", other = "Tarnivel Prefs 1.txt";
};

TEST_F(File, IsWrittenOnlyWhereSomethingChangedOrNothingIsThere)
{
    const std::string content = "\xEF\xBB\xBFVolume Sonore :@: 7\nof another version\n";
    const PreferencesFile file = Start(content);
    EXPECT_TRUE(file.Write(file.Settings()));
    EXPECT_EQ(folder.Content(name), content);
    EXPECT_TRUE(file.Write(WithVolume(8)));
    EXPECT_EQ(Written().volume, 8);
    fs::remove(folder.Path() / name);
    EXPECT_TRUE(file.Write(file.Settings()));
    EXPECT_EQ(Written().volume, 7);
}

TEST_F(File, OfTwoCopiesEachKeepsWhatTheOtherChanged)
{
    const PreferencesFile first = Start("Volume Sonore :@: 7\nTabSpecAorg :@: o\ta\nTabSpecAdest1 :@: d\tb\n"),
                          second = Start({});
    Preferences ours = first.Settings(), theirs = second.Settings();
    theirs.volume = 9;
    theirs.modelFile = U"model";
    theirs.TabSpecAorg = {U"o", U"x", U"y"};
    theirs.TabSpecAdest1 = {U"theirs", U"1", U"2"};
    EXPECT_TRUE(second.Write(theirs));
    ours.archive = true;
    ours.modelFile = ours.TabSpecAdest1.front() = U"mine";
    EXPECT_TRUE(first.Write(ours));
    const Preferences both = Written();
    EXPECT_EQ(both.volume, 9);
    EXPECT_TRUE(both.archive);
    EXPECT_EQ(both.modelFile, U"mine") << "of two changes the last stays";
    EXPECT_EQ(both.TabSpecAorg, theirs.TabSpecAorg);
    EXPECT_EQ(both.TabSpecAdest1, (std::vector<String>{U"mine", U"1", U"2"}));
    ours.TabSpecAorg.front() = U"renamed";
    EXPECT_TRUE(first.Write(ours));
    EXPECT_EQ(Written().TabSpecAorg, (std::vector<String>{U"renamed", U"x", U"y"})) << "a name is no row";
    ours.TabSpecAdest1 = {U"d", U"c"};
    EXPECT_TRUE(first.Write(ours));
    EXPECT_EQ(Written().TabSpecAorg, ours.TabSpecAorg) << "the columns of a table go together";
    EXPECT_NE(folder.Content(other).find("\tx\ty"), std::string::npos) << "of two tables the other's is kept";
    EXPECT_TRUE(second.Write(theirs));
    EXPECT_NE(folder.Content("Tarnivel Prefs 2.txt").find("\tc"), std::string::npos) << "and the next one's too";
    EXPECT_EQ(probe.Asked.size(), 2U);
}

TEST_F(File, WhatCouldNotBeReadAsItIsStaysUnderAnotherName)
{
    const std::string tooLong = "SceneryPack_Path :@: " + std::string(70'000, 'x') + "\n";
    const std::tuple<const char*, std::string, StringView> rows[] = {
        {"bytes that are no text", "Volume Sonore :@: 7\nPathSpecA :@: a\xE9\n",
         U"” contient des octets qui ne sont pas de l'UTF-8."},
        {"a value that no field takes", "Volume Sonore :@: 7\n" + tooLong,
         U"Tarnivel Prefs.txt\n \nAvant d'être remplacé"},
    };
    for (const auto& [row, content, told] : rows) {
        SCOPED_TRACE(row);
        const PreferencesFile file = Start(content);
        ASSERT_EQ(probe.Asked.size(), 1U);
        EXPECT_NE(probe.Asked.front().find(told), String::npos);
        EXPECT_NE(probe.Asked.front().find(U"“Tarnivel Prefs 1.txt”"), String::npos);
        EXPECT_EQ(file.Settings().volume, 7);
        EXPECT_EQ(file.Refused(), content.size() > tooLong.size() ? 1 : 0);
        EXPECT_TRUE(file.Write(file.Settings()));
        EXPECT_EQ(folder.Content(name), content) << "nothing was changed";
        EXPECT_TRUE(file.Write(WithVolume(8)));
        EXPECT_EQ(folder.Content(other), content);
        EXPECT_EQ(Written().volume, 8);
        fs::remove(folder.Path() / other);
        probe.Asked.clear();
    }
    fs::remove(folder.Path() / name);
    fs::create_directory(folder.Path() / name);
    const PreferencesFile file = Start({});
    EXPECT_EQ(probe.Beeps, 5) << "a file that can't be read beeps three times";
    EXPECT_EQ(
        probe.Asked.front().find(U"Error ! Please contact the authors.\nPrefsCharger, problem while reading file!\n" +
                                 (folder.Path() / name).u32string() + U"\n"),
        0U);
    EXPECT_TRUE(file.Write(WithVolume(8)));
    EXPECT_TRUE(fs::is_directory(folder.Path() / other));
    EXPECT_EQ(Written().volume, 8);
}

TEST_F(File, AWriterWaitsForAnotherAndAReaderSeesAWholeFile)
{
    const std::string content = "Volume Sonore :@: 7\nPathSpecA :@: " + std::string(100'000, 'x') + "\n";
    const PreferencesFile file = Start(content);
    std::vector<pid_t> writers;
    for (Int16 writer = 0; writer < 2; ++writer) {
        writers.push_back(fork());
        if (writers.back() != 0) continue;
        for (Int16 volume = 0; volume < 100; ++volume) {
            Preferences settings = file.Settings();
            settings.volume = volume;
            settings.PathSpecA += String(static_cast<std::size_t>(volume), U'y');
            if (!file.Write(settings)) _exit(1);
        }
        _exit(0);
    }
    int status = 0;
    for (const pid_t writer : writers)
        while (waitpid(writer, &status, WNOHANG) == 0) {
            const std::string seen = folder.Content(name);
            EXPECT_TRUE(seen.ends_with("\nTabSpecAdest2 :@: \n") || seen == content);
        }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1) << "nothing is left beside it";
}

TEST_F(File, AFolderInWhichNothingCanBeMadeIsToldOnce)
{
    folder.File(name, "Volume Sonore :@: 7\n");
    const char* const place = folder.Path().c_str();
    if (mount(place, place, nullptr, MS_BIND, nullptr) != 0) GTEST_SKIP() << "needs the right to mount";
    mount(nullptr, place, nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr);
    const PreferencesFile file = Start({});
    EXPECT_EQ(file.Settings().volume, 7);
    ASSERT_EQ(probe.Asked.size(), 1U);
    EXPECT_EQ(probe.Asked.front().find(U"Le dossier “" + folder.Path().u32string() + U"” n'est pas utilisable ("), 0U);
    EXPECT_TRUE(file.Write(WithVolume(8)));
    EXPECT_EQ(probe.Asked.size(), 1U);
    umount2(place, MNT_DETACH);
}

} // namespace
