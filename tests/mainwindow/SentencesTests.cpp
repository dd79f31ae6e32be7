#include "mainwindow/Sentences.h"

#include <gtest/gtest.h>

namespace {

TEST(Sentences, TheReasonOfARefusalIsNamed)
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

TEST(Sentences, ANumberHasItsFormOfTheWord)
{
    EXPECT_EQ(StatusSentence(12, {.lines = 612, .enabled = 580, .disabled = 1, .marked = 0}),
              U"Ligne 12 · 612 lignes, 580 activées, 1 désactivée, 0 sans équivalent");
}

} // namespace
