#include "engine/SceneryText.h"

#include <gtest/gtest.h>

namespace {

const String stars(89, U'*');

String Refused(StringView text)
{
    return U"### Error ###  Content should begin with :\nI\n1000 version\nSCENERY\n\n" + stars + U"\n" + String(text);
}

TEST(SceneryText, Acceptance)
{
    // What isn't accepted becomes nothing here, and an explanation with the text behind it there.
    const std::tuple<const char*, String, String> rows[] = {
        {"the header alone is accepted", U"I\n1000 version\nSCENERY", U"I\n1000 version\nSCENERY"},
        {"21 characters are too few", U"I\n1000 version\nSCENER", U""},
        {"only 22 characters count", U"I\n1000 version\nSCENERY_X", U"I\n1000 version\nSCENERY_X"},
        {"case doesn't count, and stays", U"i\n1000 VERSION\nscenery\n", U"i\n1000 VERSION\nscenery\n"},
        {"CR LF in the header is refused and kept as it is", U"I\r\n1000 version\r\nSCENERY\r\nx\r", U""},
        {"CR in the header is refused", U"I\r1000 version\rSCENERY", U""},
        {"all kinds of line ends behind the header become LF", U"I\n1000 version\nSCENERY\r\n\r\na\rb\n\rc\n",
         U"I\n1000 version\nSCENERY\n\na\nb\n\nc\n"},
        {"a byte-order mark is no header", U"\uFEFFI\n1000 version\nSCENERY", U""},
        {"an error text is refused like any other", U"### Error ###7 x", U""},
        {"NULs are characters", String(U"I\n1000 version\nSCENERY\n\0\r\0", 26),
         String(U"I\n1000 version\nSCENERY\n\0\n\0", 26)},
    };
    for (const auto& [name, raw, text] : rows) {
        const Acceptance acceptance = AcceptSceneryText(raw);
        EXPECT_EQ(acceptance.text, text.empty() ? Refused(raw) : text) << name;
        EXPECT_EQ(acceptance.accepted, !text.empty()) << name;
    }
    EXPECT_EQ(AcceptSceneryText(U"").text, U"### Error ###  empty");
    EXPECT_FALSE(AcceptSceneryText(U"").accepted);
    EXPECT_EQ(LgTxtDebSpack, 22);
}

TEST(SceneryText, RetScenLigne)
{
    const std::tuple<const char*, StringView, StringView> rows[] = {
        {"an enabled pack", U"SCENERY_PACK Custom Scenery/Alpes/", U"Alpes"},
        {"a disabled pack", U"SCENERY_PACK_DISABLED Custom Scenery/Alpes/", U"Alpes"},
        {"case doesn't count, the name keeps its own", U"scenery_pack custom scenery/AlPes/", U"AlPes"},
        {"only the first folder of a deeper path", U"SCENERY_PACK Custom Scenery/Alpes/Sud/", U"Alpes"},
        {"no slash behind the name", U"SCENERY_PACK Custom Scenery/Alpes", U""},
        {"nothing behind the keyword", U"SCENERY_PACK Custom Scenery/", U""},
        {"an empty name", U"SCENERY_PACK Custom Scenery//x/", U""},
        {"the keyword stands inside the line", U"# SCENERY_PACK_DISABLED Custom Scenery/Alpes/", U"Alpes"},
        {"the enabled keyword stands first", U"SCENERY_PACK Custom Scenery/a/SCENERY_PACK_DISABLED Custom Scenery/b/",
         U"a"},
        {"the disabled keyword stands first", U"SCENERY_PACK_DISABLED Custom Scenery/b/SCENERY_PACK Custom Scenery/a/",
         U"b"},
        {"the first keyword without a name hides the second",
         U"SCENERY_PACK_DISABLED Custom Scenery//SCENERY_PACK Custom Scenery/a/", U""},
        {"another path", U"SCENERY_PACK /Volumes/Data/Alpes/", U""},
        {"two blanks", U"SCENERY_PACK  Custom Scenery/Alpes/", U""},
        {"a header line", U"SCENERY", U""},
        {"a blank line", U"", U""},
        {"nothing is decoded or composed", U"SCENERY_PACK Custom Scenery/e\u0301 %20:é/", U"e\u0301 %20:é"},
    };
    for (const auto& [name, line, scenery] : rows)
        EXPECT_EQ(RetScenLigne(line), scenery) << name;
}

TEST(SceneryText, LongTxtTab)
{
    const std::vector<SceneryLine> lines = LinesOf(U"I\n\né😀");
    EXPECT_EQ(LongTxtTab(lines, 1, -1), 0);
    EXPECT_EQ(LongTxtTab(lines, 1, 1), 3);
    EXPECT_EQ(LongTxtTab(lines, 2, 2), 9);
}

TEST(SceneryText, TheReasonOfARefusalIsNamed)
{
    struct Row {
        const char* name;
        StringView raw, reason;
    };
    for (const Row& row : {
             Row{"nothing", U"", U"vide ou illisible"},
             Row{"Windows", U"I\r\n1000 version\r\nSCENERY\r\n\r\n", U"fins de ligne Windows"},
             Row{"one line end of Windows", U"i\n1000 version\r\nscenery", U"fins de ligne Windows"},
             Row{"a mark before all", U"\uFEFFI\r\n1000 version\r\nSCENERY", U"marque d'ordre d'octets (BOM)"},
             Row{"the connection", U"### Error ###3 Host not found\nmore", U"3 Host not found"},
             Row{"a page", U"<html>\r\n", U"ne commence pas comme un scenery_packs.ini"},
         })
        EXPECT_EQ(ReasonOfRefusal(row.raw), row.reason) << row.name;
}

} // namespace
