#include "engine/Checks.h"
#include "engine/Folders.h"
#include "engine/ManyTexts.h"
#include "engine/SceneryText.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/core/FolderItem.h"

#include <gtest/gtest.h>

namespace {

const String twice = U"Ces Sceneries sont plus d'une fois dans le SceneryModel :";
const String unlisted = U"Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :";
const String missing = U"Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :";
const String otherCase =
    U"X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :";

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
    const std::tuple<const char*, std::vector<StringView>, String> rows[] = {
        {"no line", {}, U""},
        {"different names", {U"a", U"-b", U"aa"}, U""},
        {"both states of a pack are one scenery twice", {U"A", U"-A"}, twice + U"\n - A"},
        {"three lines make one entry", {U"A", U"B", U"A", U"A"}, twice + U"\n - A"},
        {"four lines make one entry, spelled as in the second", {U"a", U"A", U"a", U"A"}, twice + U"\n - A"},
        {"entries are sorted", {U"c", U"B", U"a", U"b", U"A", U"C"}, twice + U"\n - A\n - b\n - C"},
        {"accents count in full", {U"é", U"e", U"É"}, twice + U"\n - É"},
        {"a deeper path names the same scenery", {U"a/x", U"a/y"}, twice + U"\n - a"},
    };
    for (const auto& [name, names, report] : rows) {
        const String text = TextFor(names);
        EXPECT_EQ(TestModelScen(LinesOf(text)), report) << name;
    }
    const StringView outside = U"SCENERY_PACK x/\nSCENERY_PACK x/\n\n\nSCENERY_PACK Custom Scenery/a";
    EXPECT_EQ(TestModelScen(LinesOf(outside)), U"");
}

TEST(Checks, TestFolderScen)
{
    const std::tuple<const char*, std::vector<const char*>, std::vector<StringView>, String> rows[] = {
        {"nothing on either side", {}, {}, U""},
        {"each has its folder, two in another case",
         {"Alpes", "corse", "é"},
         {U"É", U"alpes", U"-corse"},
         otherCase + U"\n - alpes (Alpes)\n - É (é)"},
        {"both sections", {"C", "b", "J"}, {U"J", U"a"}, unlisted + U"\n - b\n - C\n \n" + missing + U"\n - a"},
        {"only folders", {"a"}, {}, unlisted + U"\n - a"},
        {"only names, sorted by their lines: enabled first", {}, {U"-a", U"c", U"B"}, missing + U"\n - B\n - c\n - a"},
        {"a folder answers for the first sorted line",
         {"a"},
         {U"a/z", U"A/y", U"-a"},
         missing + U"\n - a\n - a\n \n" + otherCase + U"\n - A (a)"},
        {"a line answers for one folder, the first one", {"A", "a"}, {U"a"}, unlisted + U"\n - a"},
        {"a composed folder for a decomposed name", {"\u00e9"}, {U"e\u0301"}, U""},
        {"a decomposed folder for a composed name", {"e\u0301"}, {U"\u00e9"}, U""},
        {"folders show composed, names as listed",
         {"e\u0301"},
         {U"o\u0301"},
         unlisted + U"\n - \u00e9\n \n" + missing + U"\n - o\u0301"},
        {"a colon on disk shows as a slash", {"a:b"}, {}, unlisted + U"\n - a/b"},
        {"a folder whose name begins with a dot counts", {".x"}, {}, unlisted + U"\n - .x"},
    };
    for (const auto& [name, folders, names, report] : rows) {
        TemporaryFolder temporary;
        for (const char* folder : folders)
            temporary.Folder(folder);
        const String text = TextFor(names);
        EXPECT_EQ(TestFolderScen(LinesOf(text), FolderItem(temporary.Path())), report) << name;
    }
}

TEST(Checks, TestFolderScenTakesOnlyFoldersOfTheFolderItself)
{
    namespace fs = std::filesystem;
    TemporaryFolder temporary;
    const fs::path scenery = temporary.Folder("scenery");
    temporary.Folder("scenery/a/b");
    temporary.Folder("outside");
    temporary.File("scenery/scenery_packs.ini");
    fs::create_directory_symlink("../outside", scenery / "link");
    fs::create_directory_symlink(scenery / "link", scenery / "unlisted link");
    fs::create_symlink("scenery_packs.ini", scenery / "link to a file");
    fs::create_symlink("gone", scenery / "dead link");
    fs::create_symlink("circle", scenery / "circle");
    const String text = TextFor({U"link", U"link to a file", U"dead link", U"circle"});
    EXPECT_EQ(TestFolderScen(LinesOf(text), FolderItem(scenery)),
              unlisted + U"\n - a\n - unlisted link\n \n" + missing + U"\n - circle\n - dead link\n - link to a file");
    EXPECT_EQ(TestFolderScen(LinesOf(TextFor({U"link"})), FolderItem(temporary.Path() / "gone")),
              missing + U"\n - link");
}

TEST(Folders, LinesThatTheTextLacks)
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
        EXPECT_EQ(UnlistedLines(text, dossier), lines) << name;
    }
}

TEST(Folders, EnabledWithoutFolder)
{
    TemporaryFolder temporary;
    temporary.Folder("a");
    const String text = U"SCENERY_PACK /x/\n" + TextFor({U"z", U"a", U"-y", U"A", U"m/n"});
    std::vector<Int64> starts = EnabledWithoutFolder(text, FolderItem(temporary.Path()));
    String found;
    for (const Int64 start : starts)
        found += NthField(Middle(text, start), U"/", 2);
    EXPECT_EQ(found, U"zm") << "of two lines of a name neither lacks its folder";
}

TEST(Checks, Naff)
{
    EXPECT_EQ(Fncts::Naff(U":a:e\u0301/", true, true), U"/a/\u00e9/");
    EXPECT_EQ(Fncts::Naff(U":a:e\u0301/", true, false), U"/a/e\u0301/");
    EXPECT_EQ(Fncts::Naff(U"/a/e\u0301:", false, true), U":a:e\u0301:");
    EXPECT_EQ(Fncts::Naff(U"", true, true), U"");
}

TEST(ManyTexts, SortedOrder)
{
    const StringView nul(U"a\0", 2);
    const std::tuple<const char*, std::vector<StringView>, std::vector<std::size_t>> rows[] = {
        {"nothing", {}, {}},
        {"equal texts keep their order", {U"b", U"A", U"a", U"", U"B", U"a", U""}, {3, 6, 1, 2, 5, 0, 4}},
        {"a beginning comes first, even before a NUL", {U"ab", nul, U"a", U"aa"}, {2, 1, 3, 0}},
        {"differences behind many equal characters",
         {U"Custom Scenery/10/", U"custom scenery/10", U"CUSTOM SCENERY/1", U"Custom Scenery/09/zz"},
         {3, 2, 1, 0}},
        {"characters count in full, in the order of their numbers",
         {U"\U00010061", U"\u0161", U"a", U"\u2161", U"\uFF41", U"\u0160"},
         {2, 1, 5, 3, 4, 0}},
    };
    for (const auto& [name, texts, order] : rows)
        EXPECT_EQ(SortedOrder(texts), order) << name;
}

} // namespace
