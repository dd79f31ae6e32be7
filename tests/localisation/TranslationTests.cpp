#include "localisation/Localisation.h"
#include "toolkit/core/TextInputStream.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace {

const std::pair<std::string, const Localisation::Text&> allTexts[] = {
#include "AllTexts.inc"
};

constexpr StringView french = U"fr";

/// Texts that are the same in some other language.
const std::set<std::string> international = {"StTextScenPack", "Txt_Attente", "GrBoxSource"};

String File(const std::string& name)
{
    return Encodings::UTF8.Decode(TextInputStream::Open(FolderItem(SOURCE_FOLDER "/" + name)).ReadAll());
}

class Translations : public testing::TestWithParam<std::string> {
protected:
    const String language = Encodings::UTF8.Decode(GetParam());
};

TEST_P(Translations, HoldEachTextInTheShapeOfTheFrenchOne)
{
    const String file = File("resources/translations/tarnivel_" + GetParam() + ".ts");
    for (const auto& [name, text] : allTexts) {
        const String ours = text(language), original = text(french);
        EXPECT_TRUE(ours != original || international.contains(name)) << name << " is missing";
        // Places for values, forms for one and for many, lines, and lines of a blank alone.
        for (const StringView part : {U"¿%", U"|", U"\n", U"\n \n"})
            EXPECT_EQ(CountFields(ours, part), CountFields(original, part)) << name;
        const String id = Encodings::UTF8.Decode("<message id=\"Localisation." + name + "\">\n        <source>");
        EXPECT_NE(file.find(id + original + U"</source>"), String::npos) << name << " has another French text";
    }
    EXPECT_EQ(CountFields(file, U"<message id="), std::ssize(allTexts) + 1) << "a text that the program doesn't have";
    EXPECT_EQ(IndexOf(file, U"unfinished"), -1);
    EXPECT_GT(IndexOf(file, U" language=\"" + language), -1);
}

TEST_P(Translations, TheHelpNamesTheControlsByTheirCaptions)
{
    using namespace Localisation;
    const String rows = PopupAff(language), help = Infos_Texte(language);
    for (const String& caption :
         {RdButtSourceB(language), Btn_Generer(language), Btn_EnabDis(language), Btn_SauvFichier(language),
          String(NthField(rows, U"\n", 1)), String(NthField(rows, U"\n", 3))})
        EXPECT_TRUE(help.find(U'“' + caption) != help.npos || help.find(U'„' + caption) != help.npos)
            << Encodings::UTF8.Encode(caption);
}

TEST_P(Translations, TheDesktopSpeaksTheLanguageToo)
{
    const String entry = File("packaging/fr.kavesti.tarnivel.desktop"),
                 metainfo = File("packaging/fr.kavesti.tarnivel.metainfo.xml");
    for (const StringView key : {U"GenericName", U"Comment", U"Keywords"})
        EXPECT_EQ(IndexOf(entry, String(key) + U"[" + language + U"]=") < 0, language == U"en");
    EXPECT_EQ(IndexOf(metainfo, U"<summary xml:lang=\"" + language + U"\">") < 0, language == U"en");
}

INSTANTIATE_TEST_SUITE_P(All, Translations, testing::Values(LANGUAGES),
                         [](const auto& tested) { return tested.param; });

struct User {
    const char *name, *lang, *language;
    StringView file; // the word for "file"
};

/// Looks a text up as a user does; ends the process with 0 when it is the wanted one.
[[noreturn]] void LookUpAndExit(const User& user)
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"})
        unsetenv(name);
    setenv("LANG", user.lang, 1);
    if (*user.language) setenv("LANGUAGE", user.language, 1);
    std::exit(Localisation::Menu_Fichier() == user.file ? 0 : 1);
}

// The user's language is asked for once in the life of a process, so each row has a process of its own.
TEST(UserLanguage, DecidesWhatIsRead)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const User& user :
         {User{"LANG alone decides", "de_DE.UTF-8", "", U"Datei"},
          {"LANGUAGE comes before LANG", "de_DE.UTF-8", "nl", U"Bestand"},
          {"a country's variant reads its language", "pt_BR.UTF-8", "", U"Ficheiro"},
          {"and so it does in a list", "en_US.UTF-8", "tlh:pt_BR:de", U"Ficheiro"},
          {"and so is a variant of French, which has no translation", "en_US.UTF-8", "tlh:fr_CA:de", U"Fichier"},
          {"an unknown language reads French", "tlh_US.UTF-8", "", U"Fichier"},
          {"no language reads French", "C", "", U"Fichier"}})
        EXPECT_EXIT(LookUpAndExit(user), testing::ExitedWithCode(0), "") << user.name;
}

} // namespace
