#include "tests/TemporaryFolder.h"
#include "toolkit/core/FolderItem.h"

#include <gtest/gtest.h>

namespace {

TEST(SpecialFolders, LieInTheHomeFolder)
{
    const TemporaryFolder home;
    ::setenv("HOME", home.Path().c_str(), 1);
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        ::unsetenv(name);
    EXPECT_EQ(SpecialFolder::ApplicationData()->Path(), home.Path() / ".local/share");
    EXPECT_TRUE(SpecialFolder::ApplicationData()->IsFolder()) << "a fresh account doesn't have it";
    EXPECT_EQ(SpecialFolder::Preferences()->Path(), home.Path() / ".config");
    EXPECT_FALSE(SpecialFolder::Documents());
    (void)home.Folder("Documents");
    EXPECT_EQ(SpecialFolder::Documents()->Path(), home.Path() / "Documents");

    (void)home.File("a b");
    for (const StringView name : {U"~/a b", U"~/none/../a b"})
        EXPECT_EQ(FolderItem::Named(name)->Path(), home.Path() / "a b");
    for (const StringView name : {U"/usr/bin", U"/usr/bin/", U"file:///usr/bin", U"file://localhost/usr/b%69n"})
        EXPECT_EQ(FolderItem::Named(name).value().Path(), "/usr/bin");
    for (const StringView name :
         {U"/usr/none", U"usr", U"", U"~", U"http://localhost/usr", U"file://elsewhere/usr", U"Linux:usr:bin:"})
        EXPECT_FALSE(FolderItem::Named(name));

    ::setenv("XDG_DATA_HOME", "relative", 1);
    const auto other = home.Folder("no \xE9 text");
    ::setenv("HOME", other.c_str(), 1);
    EXPECT_EQ(SpecialFolder::ApplicationData()->Path(), other / ".local/share");
    ::setenv("HOME", home.File("in the way/.local").parent_path().c_str(), 1);
    EXPECT_FALSE(SpecialFolder::ApplicationData());
    for (const char* nowhere : {"", "relative", "/nonexistent-home", static_cast<const char*>(nullptr)}) {
        nowhere ? ::setenv("HOME", nowhere, 1) : ::unsetenv("HOME");
        EXPECT_FALSE(SpecialFolder::ApplicationData()) << (nowhere ? nowhere : "no home");
        EXPECT_FALSE(SpecialFolder::Preferences()) << (nowhere ? nowhere : "no home");
    }
    EXPECT_FALSE(std::filesystem::exists("/nonexistent-home"));
}

} // namespace
