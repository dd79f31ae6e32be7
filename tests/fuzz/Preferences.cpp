#include "preferences/Preferences.h"

#include "tests/fuzz/Input.h"

#include <array>
#include <gtest/gtest.h>

namespace {

Preferences Read(StringView text)
{
    const String lined = ReplaceLineEndings(text, U"\n");
    Preferences preferences;
    for (const StringView line : Split(lined, U"\n"))
        ReadPreference(preferences, line);
    return preferences;
}

} // namespace

void Fuzz(Input& input)
{
    Preferences preferences = Read(input.Text());
    const String text = WritePreferences(preferences);
    EXPECT_EQ(WritePreferences(Read(text)), text);

    constexpr std::array typed{&Preferences::modelFile, &Preferences::modelUrl, &Preferences::archiveFolder,
                               &Preferences::spackFile};
    for (const auto field : typed)
        preferences.*field = input.Text();
    preferences.PathSpecA = input.Text();
    const Preferences again = Read(WritePreferences(preferences));
    for (const auto field : typed)
        EXPECT_EQ(again.*field, ReplaceLineEndings(*(preferences.*field), U""));
    EXPECT_EQ(again.PathSpecA, ReplaceLineEndings(preferences.PathSpecA, U""));
    EXPECT_EQ(WritePreferences(again), WritePreferences(preferences)) << "no text disturbs another line";
}
