#include "localisation/Localisation.h"
#include "toolkit/core/TextInputStream.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

struct Row {
    std::string name;
    const Localisation::Text& text;
};

const Row allTexts[] = {
#include "AllTexts.inc"
};

constexpr StringView french = U"fr";

/// Texts that are the same in some other language.
const std::set<std::string> international = {"StTextScenPack", "Txt_Attente", "GrBoxSource"};

/// The places of the lines that hold a blank alone, and the number of lines behind them.
std::vector<std::size_t> Shape(const String& text)
{
    const std::vector<StringView> lines = Split(text, U"\n");
    std::vector<std::size_t> shape;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i] == U" ") shape.push_back(i);
    shape.push_back(lines.size());
    return shape;
}

class Translations : public testing::TestWithParam<std::string> {
protected:
    const String language = Encodings::UTF8.Decode(GetParam());

    static String File(const std::string& name)
    {
        return Encodings::UTF8.Decode(TextInputStream::Open(FolderItem(SOURCE_FOLDER "/" + name)).ReadAll());
    }
};

TEST_P(Translations, EachTextIsTranslatedInTheShapeOfTheFrenchOne)
{
    for (const auto& [name, text] : allTexts) {
        const String ours = text(language);
        const String original = text(french);
        EXPECT_TRUE(ours != original || international.contains(name)) << name << " is missing";
        EXPECT_EQ(CountFields(ours, U"¿%"), CountFields(original, U"¿%")) << name;
        EXPECT_EQ(Shape(ours), Shape(original)) << name;
    }
}

TEST_P(Translations, TheFileShowsEachTextInFrenchAndIsFinished)
{
    const String file = File("resources/translations/tarnivel_" + GetParam() + ".ts");
    for (const auto& [name, text] : allTexts) {
        const String id = Encodings::UTF8.Decode("<message id=\"Localisation." + name + "\">\n        <source>");
        EXPECT_NE(file.find(id + text(french) + U"</source>"), String::npos) << name;
    }
    EXPECT_EQ(CountFields(file, U"<message id="), std::ssize(allTexts) + 1) << "a text that the program doesn't have";
    EXPECT_EQ(IndexOf(file, U"unfinished"), -1);
}

TEST_P(Translations, TheHelpNamesTheControlsByTheirCaptions)
{
    using namespace Localisation;
    const String rows = PopupAff(language);
    const String help = Infos_Texte(language);
    for (const String& caption :
         {RdButtSourceB(language), Btn_Generer(language), Btn_EnabDis(language), Btn_SauvFichier(language),
          String(NthField(rows, U"\n", 1)), String(NthField(rows, U"\n", 3))}) {
        const auto found = help.find(caption);
        ASSERT_NE(found, String::npos) << Encodings::UTF8.Encode(caption);
        EXPECT_TRUE(help[found - 1] == U'“' || help[found - 1] == U'„') << Encodings::UTF8.Encode(caption);
    }
}

TEST_P(Translations, TheDesktopSpeaksTheLanguageToo)
{
    const String entry = File("packaging/fr.kavesti.tarnivel.desktop");
    for (const StringView key : {U"GenericName", U"Comment", U"Keywords"})
        EXPECT_NE(IndexOf(entry, String(key) + U"[" + language + U"]="), language == U"en" ? 0 : -1);
    EXPECT_NE(IndexOf(File("packaging/fr.kavesti.tarnivel.metainfo.xml"), U"<summary xml:lang=\"" + language + U"\">"),
              language == U"en" ? 0 : -1);
}

INSTANTIATE_TEST_SUITE_P(All, Translations, testing::Values(LANGUAGES),
                         [](const auto& tested) { return tested.param; });

} // namespace
