#include "support/TextFiles.h"
#include "support/TextHelpers.h"
#include "toolkit/Probe.h"

#include <gtest/gtest.h>

namespace {

TEST(FracTexte, CutsAtPlaceholdersAndReportsAMissingPart)
{
    const Probe probe;
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b¿%", 1) + Fncts::FracTexte(U"a¿%b¿%", 3), U"a");
    EXPECT_TRUE(probe.Asked.empty());
    EXPECT_EQ(Fncts::FracTexte(U"a¿%b", 0) + Fncts::FracTexte(U"a¿%b", 3), U"");
    EXPECT_EQ(probe.Asked.size(), 2U);
}

TEST(Reading, TellsWhatTheTextLostAndWhatMakesItAnotherKind)
{
    using namespace std::string_literals;
    struct Row {
        Bytes data;
        String text;
        Int64 cleaned, first;
        String firstLine, form;
    };
    const Row rows[] = {
        {"été\n", U"été\n", 0, 0, U"", U""},
        {"a\nd'\xE9t\xE9\nété\nb", U"a\nd't\nt\nb", 2, 2, U"d'\uFFFDt\uFFFD", U""},
        {"\xFF", U"", 1, 1, U"\uFFFD", U""},
        {"\xEF\xBB\xBF"
         "a\r\n",
         U"\uFEFFa\r\n", 0, 0, U"", U"BOM, CR LF"},
        {"a\rb\r\n\r", U"a\rb\r\n\r", 0, 0, U"", U"CR LF, CR"},
        {"\xFF\xFEI\0"s, U"I\0"s, 1, 1, U"\uFFFD\uFFFDI\0"s, U"UTF-16"},
        {"\xFE\xFF\0I"s, U"\0I"s, 1, 1, U"\uFFFD\uFFFD\0I"s, U"UTF-16"},
        {"I\0"s, U"I\0"s, 0, 0, U"", U"UTF-16"},
        {"", U"", 0, 0, U"", U""},
    };
    for (const Row& row : rows) {
        const Fncts::Reading reading = Fncts::TextOfBytes(row.data);
        EXPECT_EQ(reading.text, row.text);
        EXPECT_EQ(std::pair(reading.cleanedLines, reading.firstCleaned), std::pair(row.cleaned, row.first)) << row.data;
        EXPECT_EQ(reading.firstCleanedLine, row.firstLine);
        EXPECT_EQ(reading.form, row.form);
    }
    const Fncts::Reading unreadable = Fncts::LireFichier(FolderItem("/proc/self"));
    EXPECT_TRUE(unreadable.text.empty() && !unreadable.failure.empty() && !unreadable.fingerprint);
    EXPECT_EQ(Fncts::LireFichier(FolderItem("/nowhere")).failure, U"") << "a missing file has no fault";
}

} // namespace
