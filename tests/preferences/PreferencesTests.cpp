#include "preferences/Preferences.h"
#include "toolkit/core/TextEncoding.h"

#include <gtest/gtest.h>

namespace {

Preferences Read(StringView text)
{
    Preferences preferences;
    for (const StringView line : Split(text, U"\n"))
        EXPECT_EQ(ReadPreference(preferences, line), line.find(U"refused") == StringView::npos);
    return preferences;
}

TEST(Preferences, EachKeyGoesToItsSettingAndIsWrittenAsItWasRead)
{
    const String golden = U"Afficher Bouton Special A :@: True\n"
                          U"Volume Sonore :@: 35\n"
                          U"Fenetre WinMain :@: 30,60,760,-500\n"
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
    Preferences preferences = Read(golden);
    EXPECT_EQ(WritePreferences(preferences), golden);
    preferences.modelUrl = U"https\r\n://\rmodel\n";
    preferences.PathSpecA = U"Linux:\np\r\n";
    preferences.TabSpecAorg[1] = U"\ra";
    EXPECT_EQ(WritePreferences(preferences), golden) << "a line end inside a text breaks no line";
}

TEST(Preferences, WhatAHandHasWrittenDoesNoHarm)
{
    const std::pair<String, String> rows[] = {
        {U"AFFICHER bouton Special A :@: TRUE", U"Afficher Bouton Special A :@: True\n"},
        {U"Archiv Old File :@: 1", U"Archiv Old File :@: False\n"},
        {U"SourceUrl :@: a\nsourceurl :@: b\nUnknown :@: 1\nno separator\n :@: ", U"SourceUrl :@: b\n"},
        {U"Source Model :@: 1\nSource Model :@: 2 refused\nSource Model :@: -1 refused", U"Source Model :@: 1\n"},
        {U"SourceUrl :@: " + String(65'536, U'x') + U"\nSourceUrl :@: refused" + String(65'530, U'y'),
         U"SourceUrl :@: " + String(65'536, U'x') + U"\n"},
        {U"Volume Sonore :@: 35 %", U"Volume Sonore :@: 35\n"},
        {U"Volume Sonore :@: 1\nVolume Sonore :@: 1e300", U"Volume Sonore :@: 0\n"},
        {U"Volume Sonore :@: 1\nVolume Sonore :@: nan", U"Volume Sonore :@: 0\n"},
        {U"Fenetre WinMain :@: 10,48.9,-3", U"Fenetre WinMain :@: 10,48,-3,0\n"},
    };
    for (const auto& [read, written] : rows)
        EXPECT_NE(WritePreferences(Read(read)).find(written), String::npos) << Encodings::UTF8.Encode(Left(read, 90));
    EXPECT_EQ(Read(U"afficher HelpTag :@: False\nAfficher HelpTag :@: True").AffHelpTag, false) << "the first counts";
}

TEST(Geometry, AWindowThatDoesNotFitTheScreenGetsTheDefaultPlace)
{
    const std::tuple<const char*, WindowGeometry, bool> rows[] = {
        {"exactly as large as the remaining screen", {0, 48, 1280, 752}, true},
        {"as small as can be, at the end of the screen", {560, 400, 720, 400}, true},
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
        {"at the top edge it moves down", {30, 38, 760, 500}, {30, 48, 760, 500}},
        {"over all edges of a small screen", {-20, 10, 2000, 900}, {0, 48, 1280, 752}},
        {"over the right and the bottom edge", {800, 500, 760, 500}, {520, 300, 760, 500}},
    };
    for (const auto& [name, now, stored] : kept)
        EXPECT_EQ(WithinScreen(now.left, now.top, now.width, now.height, 1280, 800), stored) << name;
}

} // namespace
