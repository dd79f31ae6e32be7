#include "tests/TemporaryFolder.h"
#include "tests/engine/NaiveEngine.h"

namespace {

const String header = U"I\n1000 version\nSCENERY";

TEST(CreerSpack, TakesBadTexts)
{
    struct Row {
        const char* name;
        String model, source;
    };
    const String longPath = String(U"\nSCENERY_PACK ").append(1'000'000, U's');
    const String oneLine = String(U"SCENERY_PACK ").append(10'000'000, U'x');
    const Row rows[] = {
        {"no text at all", U"", U""},
        {"less than a header", U"I\n1000 version", U"I"},
        {"no body", header, header},
        {"nothing but line ends", String(9, U'\n'), String(5, U'\n')},
        {"NULs", header + String(U"\nSCENERY_PACK a\0b\n\0", 19), header + String(U"\n\0\nSCENERY_PACK a\0c", 19)},
        {"CR in lines", header + U"\nSCENERY_PACK a\r\n\r", header + U"\r\n\r\nSCENERY_PACK a"},
        {"a line of a million characters", header + longPath, header + longPath + U"y"},
        {"ten million characters in one line", oneLine, header + U"\n" + oneLine},
        {"tabs", header + U"\nSCENERY_PACK Custom Scenery/a/\tSCENERY_PACK Custom Scenery/a/",
         header + U"\nSCENERY_PACK Custom Scenery/\ta/"},
        {"what no text should hold", header + U"\n\U0010FFFF\n\uFFFE", header + U"\n\uFFFE\n" + char32_t{0xD800}},
    };
    TemporaryFolder empty;
    for (const Row& row : rows) {
        const FolderItem dossier(empty.Path());
        EXPECT_TRUE(RunEngine(row.model, row.source, dossier) == RunNaively(row.model, row.source, {})) << row.name;
    }
}

} // namespace
