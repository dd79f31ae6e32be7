#include "engine/SceneryText.h"

#include <gtest/gtest.h>

namespace {

TEST(SceneryText, AcceptanceOrTheReasonOfARefusal)
{
    const StringView windows = U"fins de ligne Windows", other = U"ne commence pas comme un scenery_packs.ini";
    const String header = U"I\n1000 version\nSCENERY";
    // What is refused has a reason in place of a text.
    const std::tuple<const char*, String, String, StringView> rows[] = {
        {"the header alone is accepted", header, header, U""},
        {"21 characters are too few", U"I\n1000 version\nSCENER", U"", other},
        {"case doesn't count, nor what follows", U"i\n1000 VERSION\nscenery_X", U"i\n1000 VERSION\nscenery_X", U""},
        {"CR LF in the header", U"I\r\n1000 version\r\nSCENERY\r\nx\r", U"", windows},
        {"one CR LF", U"i\n1000 version\r\nscenery", U"", windows},
        {"CR in the header", U"I\r1000 version\rSCENERY", U"", other},
        {"all line ends behind the header become LF", header + U"\r\n\r\na\rb\n\rc\n", header + U"\n\na\nb\n\nc\n",
         U""},
        {"a byte-order mark", U"\uFEFFI\r\n1000 version\r\nSCENERY", U"", U"marque d'ordre d'octets (BOM)"},
        {"the connection's error", U"### Error ###3 Host not found\nmore", U"", U"Host not found"},
        {"NULs are characters", header + String(U"\n\0\r\0", 4), header + String(U"\n\0\n\0", 4), U""},
    };
    const String refusal =
        U"### Error ###  Content should begin with :\n" + header + U"\n\n" + String(89, U'*') + U"\n";
    for (const auto& [name, raw, text, reason] : rows) {
        const Acceptance acceptance = AcceptSceneryText(raw);
        EXPECT_EQ(acceptance.text, text.empty() ? refusal + raw : text) << name;
        EXPECT_EQ(acceptance.accepted, reason.empty()) << name;
        EXPECT_EQ(acceptance.accepted ? U"" : ReasonOfRefusal(raw), reason) << name;
    }
    EXPECT_TRUE(AcceptSceneryText(U"").text == U"### Error ###  empty" && !AcceptSceneryText(U"").accepted);
    EXPECT_EQ(ReasonOfRefusal(U""), U"vide ou illisible");
}

} // namespace
