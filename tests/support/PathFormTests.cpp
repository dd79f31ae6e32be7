#include "tests/support/PathLaws.h"

namespace {

namespace fs = std::filesystem;
using Fncts::AbsPath_f;

/// The path form of a place of the boot volume whose names hold no ":".
String LongForm(const fs::path& path) { return U"Linux" + ReplaceAll(path.u32string(), U"/", U":"); }

/// "" where there is nothing.
fs::path Found(StringView path, bool followAlias = false)
{
    const auto item = Fncts::GetFitemAbsPath(path, followAlias);
    return item ? item->Path() : fs::path();
}

class PathForm : public ::testing::Test {
protected:
    PathForm() { FolderItem::SetVolumesFolder(disk_.Folder("Volumes")); }
    ~PathForm() override { FolderItem::SetVolumesFolder(std::nullopt); }

    TemporaryFolder disk_;
    const String start_ = LongForm(disk_.Path());
};

TEST_F(PathForm, NamesTheVolumeFirstAndMarksFolders)
{
    const std::pair<fs::path, String> rows[] = {
        {"/", U"Linux:"},
        {disk_.Folder("X-Plane 12"), start_ + U":X-Plane 12:"},
        {disk_.File("10:51.ini"), start_ + U":10/51.ini"},
        {disk_.File("e\u0301te\u0301"), start_ + U":\u00E9t\u00E9"},
        {disk_.Folder("Volumes/Data/X-Plane 12"), U"Data:X-Plane 12:"},
        {disk_.Path() / "Volumes/Data/new.txt", U"Data:new.txt"},
    };
    for (const auto& [path, form] : rows)
        EXPECT_EQ(AbsPath_f(FolderItem(path), true), form) << path;
    EXPECT_EQ(Found(U"LINUX"), "/") << "a volume's name ignores case";
}

TEST_F(PathForm, EveryNameComesBack)
{
    for (const char* const name : {"plain", "a:b", "a:", ":", "::", ":a", "\u212A", "e\u0301t\u00E9", "a\nb", "\r", " ",
                                   ".dots.", "...", "a\\b", "=\u0338", "\u1112\u1161", "\u0338", "Linux"})
        ExpectNameComesBack(disk_, name);
    EXPECT_NE(Found(AbsPath_f(FolderItem(disk_.File("a\xFF")), true)), disk_.Path()) << "no text, but no harm";
}

TEST_F(PathForm, WhatTheShortPathWouldMissKeepsTheLongOne)
{
    const std::pair<const char*, fs::path> rows[] = {
        {"the folder of volumes itself", disk_.File("Volumes/Data/f").parent_path().parent_path()},
        {"a folder of that name in other letters", disk_.File("volumes/Data/f")},
        {"a hidden volume", disk_.File("Volumes/.Data/f")},
        {"a volume that isn't there", disk_.Path() / "Volumes/new"},
        {"a volume called as the boot volume", disk_.Folder("Volumes/Linux/etc")},
    };
    for (const auto& [name, path] : rows) {
        EXPECT_EQ(AbsPath_f(FolderItem(path), false), LongForm(path)) << name;
        ExpectRoundTrip(path);
    }
    FolderItem::SetVolumesFolder(disk_.Path() / "missing");
    EXPECT_EQ(AbsPath_f(FolderItem(disk_.Path() / "Volumes/Data/f"), false), start_ + U":Volumes:Data:f");
}

TEST_F(PathForm, OfVolumesOfOneNameTheOneThatHoldsTheItemIsTaken)
{
    const fs::path upper = disk_.Folder("Volumes/DATA/folder"), lower = disk_.File("Volumes/data/folder/leaf");
    EXPECT_EQ(Found(U"Data:folder:leaf"), lower);
    EXPECT_EQ(Found(U"Data:folder:new"), upper / "new") << "or else the first that holds its folder";
    ExpectRoundTrip(disk_.File("Volumes/DATA/folder/leaf"));
    ExpectRoundTrip(lower);

    disk_.File("Volumes/vm/f");
    EXPECT_EQ(Found(U"vm:f"), disk_.Path() / "Volumes/vm/f");
    fs::remove_all(upper.parent_path());
    fs::remove_all(disk_.Path() / "Volumes/data");
    EXPECT_EQ(Found(U"vm:f"), "") << "the first drive after the boot volume holds swap files if that is its name";
    ExpectRoundTrip(disk_.Path() / "Volumes/vm/f");
}

TEST_F(PathForm, OnlyTheLastNameMayBeMissingOrAnAliasToFollow)
{
    EXPECT_EQ(Found(start_ + U":new.ini"), disk_.Path() / "new.ini");
    for (const StringView path : {U"", U":", U"::", U":Linux", U"Nowhere:x"})
        EXPECT_EQ(Found(path), "");
    for (const StringView path : {U":missing:x", U"::x", U":x::", U":..:x", U":..", U":."})
        EXPECT_EQ(Found(start_ + String(path)), "");

    const fs::path file = disk_.File("folder/file"), alias = disk_.Path() / "folder/alias", way = disk_.Path() / "way";
    fs::create_symlink("file", alias);
    fs::create_symlink("folder", way);
    EXPECT_EQ(Found(start_ + U":folder:alias", true), file);
    EXPECT_EQ(Found(start_ + U":folder:alias", false), alias);
    EXPECT_EQ(Found(start_ + U":way:file", true), way / "file");
}

} // namespace
