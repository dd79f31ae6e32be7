#include "engine/Checks.h"
#include "engine/Folders.h"
#include "engine/SceneryText.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/core/FolderItem.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

/// An enabled line for each name, a disabled one for a name behind "-".
String TextFor(const std::vector<StringView>& names)
{
    String text;
    for (const StringView name : names) {
        const bool disabled = name.starts_with(U'-');
        text.append(disabled ? DisabledPrefix : EnabledPrefix).append(U"Custom Scenery/");
        text.append(name.substr(disabled ? 1 : 0)).append(U"/\n");
    }
    return text;
}

TEST(Folders, OnlyThoseOfTheFolderItselfAndWhatLeadsToOneCount)
{
    TemporaryFolder temporary;
    const fs::path scenery = temporary.Folder("scenery");
    for (const char* folder : {"scenery/a/b", "scenery/.x", "scenery/e\u0301", "outside"})
        temporary.Folder(folder);
    temporary.File("scenery/scenery_packs.ini");
    fs::create_directory_symlink("../outside", scenery / "link");
    fs::create_directory_symlink(scenery / "link", scenery / "unlisted link");
    fs::create_symlink("scenery_packs.ini", scenery / "link to a file");
    fs::create_symlink("circle", scenery / "circle");
    const String text = TextFor({U"link", U"link to a file", U"circle", U"o\u0301"});
    EXPECT_EQ(TestFolderScen(LinesOf(text), FolderItem(scenery)),
              U"Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :\n - .x\n - a\n"
              U" - \u00E9\n - unlisted link\n \nCes Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier "
              U"“Custom Scenery” :\n - circle\n - link to a file\n - o\u0301");
    const String nowhere = TestFolderScen(LinesOf(text), FolderItem(scenery / "gone"));
    EXPECT_TRUE(nowhere.starts_with(U"Ces Sceneries") && nowhere.ends_with(U"\n - o\u0301"));
}

TEST(Folders, LinesThatTheTextLacksAndThoseThatLackAFolder)
{
    TemporaryFolder temporary;
    for (const char* folder : {"b", "A", "c:d", "listed", "é"})
        temporary.Folder(folder);
    const FolderItem dossier(temporary.Path());
    const StringView head = U"I\n1000 version\nSCENERY";
    const std::tuple<const char*, String, Int64, String> rows[] = {
        {"behind the header and its blank line, by name", String(head) + U"\n\n" + TextFor({U"-listed", U"E\u0301"}),
         24, TextFor({U"A", U"b"})},
        {"no blank line", String(head) + U"\n" + TextFor({U"listed", U"B", U"a", U"é"}), 23, U""},
        {"the header alone", String(head), 22, TextFor({U"A", U"b", U"listed", U"é"})},
        {"no text", U"", 0, TextFor({U"A", U"b", U"listed", U"é"})},
    };
    for (const auto& [name, text, place, lines] : rows) {
        EXPECT_EQ(FirstPlace(text), place) << name;
        const UnlistedFolders found = FindUnlisted(text, dossier);
        EXPECT_EQ(found.lines, lines) << name;
        EXPECT_EQ(found.leftOut, std::vector<String>{U"c/d"}) << name;
    }
    String found;
    const String text = U"SCENERY_PACK /x/\n" + TextFor({U"z", U"b", U"-y", U"B", U"m/n"});
    for (const Int64 start : EnabledWithoutFolder(text, dossier))
        found += NthField(Middle(text, start), U"/", 2);
    EXPECT_EQ(found, U"zm") << "of two lines of a name neither lacks its folder";
}

} // namespace
