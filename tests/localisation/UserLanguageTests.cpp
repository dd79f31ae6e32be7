#include "localisation/Localisation.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

struct Row {
    const char *name, *lang, *language;
    StringView file; // the word for "file"
};

const Row rows[] = {
    {"LANG alone decides", "de_DE.UTF-8", "", U"Datei"},
    {"LANGUAGE comes before LANG", "de_DE.UTF-8", "nl", U"Bestand"},
    {"a country's variant reads its language", "pt_BR.UTF-8", "", U"Ficheiro"},
    {"and so it does in a list", "en_US.UTF-8", "pl:pt_BR:de", U"Ficheiro"},
    {"an unknown first language gives way to the second", "sv_SE.UTF-8", "sv:es", U"Archivo"},
    {"French is known, though it has no translation", "fr_FR.UTF-8", "fr:en", U"Fichier"},
    {"and so is a variant of it", "en_US.UTF-8", "pl:fr_CA:de", U"Fichier"},
    {"an unknown language reads French", "sv_SE.UTF-8", "", U"Fichier"},
    {"no language reads French", "C", "", U"Fichier"},
};

/// Looks a text up as a user with this environment does; ends the process with 0 when it is the wanted one.
[[noreturn]] void LookUpAndExit(const Row& row)
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"})
        unsetenv(name);
    setenv("LANG", row.lang, 1);
    if (*row.language) setenv("LANGUAGE", row.language, 1);
    std::exit(Localisation::Menu_Fichier() == row.file ? 0 : 1);
}

// The user's language is asked for once in the life of a process, so each row has a process of its own.
TEST(UserLanguage, DecidesWhatIsRead)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const Row& row : rows)
        EXPECT_EXIT(LookUpAndExit(row), testing::ExitedWithCode(0), "") << row.name;
}

} // namespace
