#include "engine/Checks.h"
#include "engine/Names.h"
#include "engine/SceneryText.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

const String twice = U"Ces Sceneries sont plus d'une fois dans le SceneryModel :";
const String unlisted = U"Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :";
const String missing = U"Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :";

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

TEST(Checks, TestModelScen)
{
    struct Row {
        const char* name;
        std::vector<StringView> names;
        String report;
    };
    const Row rows[] = {
        {"no line", {}, U""},
        {"different names", {U"a", U"-b", U"aa"}, U""},
        {"both states of a pack are one scenery twice", {U"A", U"-A"}, twice + U"\n - A"},
        {"three lines make one entry", {U"A", U"B", U"A", U"A"}, twice + U"\n - A"},
        {"four lines make one entry, spelled as in the second", {U"a", U"A", U"a", U"A"}, twice + U"\n - A"},
        {"entries are sorted", {U"c", U"B", U"a", U"b", U"A", U"C"}, twice + U"\n - A\n - b\n - C"},
        {"accents count in full", {U"é", U"e", U"É"}, twice + U"\n - É"},
        {"a deeper path names the same scenery", {U"a/x", U"a/y"}, twice + U"\n - a"},
    };
    for (const Row& row : rows) {
        const String text = TextFor(row.names);
        EXPECT_EQ(TestModelScen(LinesOf(text)), row.report) << row.name;
    }
    const StringView outside = U"SCENERY_PACK x/\nSCENERY_PACK x/\n\n\nSCENERY_PACK Custom Scenery/a";
    EXPECT_EQ(TestModelScen(LinesOf(outside)), U"");
}

TEST(Checks, TestFolderScen)
{
    struct Row {
        const char* name;
        std::vector<const char*> folders;
        std::vector<StringView> names;
        String report;
    };
    const Row rows[] = {
        {"nothing on either side", {}, {}, U""},
        {"each has its folder, whatever the case", {"Alpes", "corse"}, {U"alpes", U"-CORSE"}, U""},
        {"both sections",
         {"Corse", "alpes", "Jura"},
         {U"Jura", U"Bretagne"},
         unlisted + U"\n - alpes\n - Corse\n \n" + missing + U"\n - Bretagne"},
        {"only folders", {"a"}, {}, unlisted + U"\n - a"},
        {"only names, sorted by their lines: enabled ones first",
         {},
         {U"-a", U"c", U"B"},
         missing + U"\n - B\n - c\n - a"},
        {"a folder answers for one line, the first when sorted",
         {"a"},
         {U"a/z", U"A/y", U"-a"},
         missing + U"\n - a\n - a"},
        {"a line answers for one folder, the first one", {"A", "a"}, {U"a"}, unlisted + U"\n - a"},
        {"a composed folder for a decomposed name", {"\u00e9"}, {U"e\u0301"}, U""},
        {"a decomposed folder for a composed name", {"e\u0301"}, {U"\u00c9"}, U""},
        {"folders show composed, names as listed",
         {"e\u0301"},
         {U"o\u0301"},
         unlisted + U"\n - \u00e9\n \n" + missing + U"\n - o\u0301"},
        {"a colon on disk shows as a slash", {"a:b"}, {}, unlisted + U"\n - a/b"},
        {"a folder whose name begins with a dot counts", {".x"}, {}, unlisted + U"\n - .x"},
    };
    for (const Row& row : rows) {
        TemporaryFolder temporary;
        for (const char* folder : row.folders)
            temporary.Folder(folder);
        const String text = TextFor(row.names);
        EXPECT_EQ(TestFolderScen(LinesOf(text), FolderItem(temporary.Path())), row.report) << row.name;
    }
}

TEST(Checks, TestFolderScenTakesOnlyFoldersOfTheFolderItself)
{
    TemporaryFolder temporary;
    const std::filesystem::path outside = temporary.Folder("outside");
    temporary.Folder("scenery/a/b");
    temporary.File("scenery/scenery_packs.ini");
    std::filesystem::create_directory_symlink(outside, temporary.Path() / "scenery/link");
    const std::vector<SceneryLine> lines = LinesOf(U"SCENERY_PACK Custom Scenery/link/");
    EXPECT_EQ(TestFolderScen(lines, FolderItem(temporary.Path() / "scenery")),
              unlisted + U"\n - a\n \n" + missing + U"\n - link");
    EXPECT_EQ(TestFolderScen(lines, FolderItem(temporary.Path() / "gone")), missing + U"\n - link");
}

TEST(Checks, Naff)
{
    EXPECT_EQ(Fncts::Naff(U":a:e\u0301/", true, true), U"/a/\u00e9/");
    EXPECT_EQ(Fncts::Naff(U":a:e\u0301/", true, false), U"/a/e\u0301/");
    EXPECT_EQ(Fncts::Naff(U"/a/e\u0301:", false, true), U":a:e\u0301:");
    EXPECT_EQ(Fncts::Naff(U"", true, true), U"");
}

} // namespace
