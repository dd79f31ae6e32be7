#include "preferences/Preferences.h"

#include <gtest/gtest.h>

namespace {

Preferences Read(const std::vector<StringView>& lines, int refused = 0)
{
    Preferences preferences;
    for (const StringView line : lines)
        refused -= ReadPreference(preferences, line) ? 0 : 1;
    EXPECT_EQ(refused, 0);
    return preferences;
}

TEST(Preferences, EachKeyGoesToItsSetting)
{
    const Preferences preferences = Read({
        U"AFFICHER bouton Special A :@: TRUE",
        U"Volume Sonore :@: 35 %",
        U"Fenetre WinMain :@: 10,48,-3",
        U"Source Model :@: 1",
        U"SourceFile_Path :@: Linux:a :@: b",
        U"SourceUrl :@: https://model",
        U"Archiv Old File :@: 1",
        U"ArchivFolder_Path :@: Linux:old:",
        U"SceneryPack_Path :@: ",
        U"WspecAheight :@: 420.9",
        U"PathSpecA :@: Linux:p",
        U"TabSpecAorg :@: name\ta\t\tb",
        U"TabSpecAdest1 :@: ",
        U"TabSpecAdest2 :@: x",
        U"Unknown :@: 1",
        U"no separator",
        U" :@: ",
    });
    EXPECT_TRUE(preferences.DrapAffBtnSpecA);
    EXPECT_EQ(preferences.volume, 35);
    EXPECT_EQ(preferences.geometry, (WindowGeometry{10, 48, -3, 0}));
    EXPECT_EQ(preferences.sourceModel, 1);
    EXPECT_EQ(preferences.modelFile, U"Linux:a :@: b") << "the first separator of a line counts";
    EXPECT_EQ(preferences.modelUrl, U"https://model");
    EXPECT_EQ(preferences.archive, false) << "only True is true";
    EXPECT_EQ(preferences.archiveFolder, U"Linux:old:");
    EXPECT_EQ(preferences.spackFile, U"");
    EXPECT_EQ(preferences.WspecAheight, 420);
    EXPECT_EQ(preferences.PathSpecA, U"Linux:p");
    EXPECT_EQ(preferences.TabSpecAorg, (std::vector<String>{U"name", U"a", U"", U"b"}));
    EXPECT_TRUE(preferences.TabSpecAdest1.empty());
    EXPECT_EQ(preferences.TabSpecAdest2, std::vector<String>{U"x"});
}

TEST(Preferences, OfTwoLinesTheLaterWinsButForTheOldHelpKey)
{
    EXPECT_EQ(Read({U"SourceUrl :@: a", U"sourceurl :@: b"}).modelUrl, U"b");
    EXPECT_EQ(Read({U"afficher HelpTag :@: False", U"Afficher HelpTag :@: True"}).AffHelpTag, false);
}

TEST(Preferences, NumbersOutOfRangeDoNoHarm)
{
    EXPECT_EQ(Read({U"Source Model :@: 0", U"Source Model :@: 2", U"Source Model :@: -1"}, 2).sourceModel, 0);
    EXPECT_EQ(Read({U"Volume Sonore :@: 1e300"}).volume, 0);
    EXPECT_EQ(Read({U"Volume Sonore :@: nan"}).volume, 0);
    EXPECT_EQ(Read({U"Volume Sonore :@: -99999999999999999999"}).volume, 0);
}

TEST(Preferences, AFileIsWrittenAsItWasRead)
{
    const String golden = U"Afficher Bouton Special A :@: True\n"
                          U"Volume Sonore :@: 35\n"
                          U"Fenetre WinMain :@: 30,60,760,500\n"
                          U"Source Model :@: 1\n"
                          U"SourceFile_Path :@: Linux:a :@: b\n"
                          U"SourceUrl :@: https://model\n"
                          U"Archiv Old File :@: False\n"
                          U"ArchivFolder_Path :@: \n"
                          U"SceneryPack_Path :@: Linux:é:scenery_packs.ini\n"
                          U"WspecAheight :@: 420\n"
                          U"PathSpecA :@: Linux:p\n"
                          U"TabSpecAorg :@: name\ta\t\n"
                          U"TabSpecAdest1 :@: \n"
                          U"TabSpecAdest2 :@: x\n";
    Preferences preferences = Read(Split(golden, U"\n"));
    EXPECT_EQ(WritePreferences(preferences), golden);
    preferences.modelUrl = U"https\r\n://\rmodel\n";
    EXPECT_EQ(WritePreferences(preferences), golden) << "a pasted line end breaks no line";
}

TEST(Geometry, AWindowThatDoesNotFitTheScreenGetsTheDefaultPlace)
{
    const std::tuple<const char*, WindowGeometry, bool> rows[] = {
        {"exactly as large as the remaining screen", {0, 48, 1280, 752}, true},
        {"one point too high", {0, 47, 1280, 752}, false},
        {"left of the screen", {-1, 48, 720, 400}, false},
        {"narrower than the minimum", {0, 48, 719, 400}, false},
        {"lower than the minimum", {0, 48, 720, 399}, false},
        {"over the right edge", {561, 48, 720, 400}, false},
        {"over the bottom edge", {0, 401, 720, 400}, false},
        {"at the end of the numbers", {32767, 32767, 32767, 32767}, false},
    };
    for (const auto& [name, stored, fits] : rows)
        EXPECT_EQ(FitToScreen(stored, 720, 400, 1280, 800), fits ? stored : (WindowGeometry{30, 60, 1220, 740}))
            << name;
    const std::tuple<const char*, WindowGeometry, WindowGeometry> kept[] = {
        {"a window that fits keeps its place", {30, 60, 760, 500}, {30, 60, 760, 500}},
        {"at the top edge it moves down", {30, 38, 760, 500}, {30, 48, 760, 500}},
        {"as high as the screen it gets lower", {0, 38, 1280, 762}, {0, 48, 1280, 752}},
        {"over all edges of a small screen", {-20, 10, 2000, 900}, {0, 48, 1280, 752}},
        {"over the right and the bottom edge", {800, 500, 760, 500}, {520, 300, 760, 500}},
    };
    for (const auto& [name, now, stored] : kept)
        EXPECT_EQ(WithinScreen(now.left, now.top, now.width, now.height, 1280, 800), stored) << name;
}

} // namespace
