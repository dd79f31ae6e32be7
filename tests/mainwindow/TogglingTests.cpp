#include "tests/mainwindow/ToggleLaws.h"

namespace {

/// A text in which "[" and "]" stand for the ends of the selection, or "|" for the caret.
struct Marked {
    String text;
    Selection selection{0, 0};

    explicit Marked(StringView marked)
    {
        for (const char32_t c : marked) {
            if (c == U'[' || c == U'|')
                selection.start = std::ssize(text);
            else if (c == U']')
                selection.length = std::ssize(text) - selection.start;
            else
                text += c;
        }
    }
};

constexpr ToggleMode invert = ToggleMode::Invert, enable = ToggleMode::Enable, disable = ToggleMode::Disable;

TEST(Toggling, LinesInTheSelectionChange)
{
    struct Row {
        const char* name;
        ToggleMode mode;
        StringView before, after;
    };
    const Row rows[] = {
        {"a caret stands for its line, which is selected then", invert, U"I\nSCENERY_PACK A|/\nx",
         U"I\n[SCENERY_PACK_DISABLED A/]\nx"},
        {"and the other way", invert, U"I\n|SCENERY_PACK_DISABLED A/\nx", U"I\n[SCENERY_PACK A/]\nx"},
        {"every line flips from its own state", invert,
         U"I\n[SCENERY_PACK é\nSCENERY_PACK_DISABLED 😀\nSCENERY_PACK C]\n",
         U"I\n[SCENERY_PACK_DISABLED é\nSCENERY_PACK 😀\nSCENERY_PACK_DISABLED C]\n"},
        {"forced on", enable, U"I\n[SCENERY_PACK A\nSCENERY_PACK_DISABLED B]\n",
         U"I\n[SCENERY_PACK A\nSCENERY_PACK B]\n"},
        {"forced off", disable, U"I\n[SCENERY_PACK A\nSCENERY_PACK_DISABLED B]\n",
         U"I\n[SCENERY_PACK_DISABLED A\nSCENERY_PACK_DISABLED B]\n"},
        {"a line selected from its middle stays", invert, U"I\nSCENERY[_PACK A\nSCENERY_PACK B]\n",
         U"I\nSCENERY[_PACK A\nSCENERY_PACK_DISABLED B]\n"},
        {"a line changes when only its start is selected", invert, U"I\n[x\nSCENERY_PACK B]B\n",
         U"I\n[x\nSCENERY_PACK_DISABLED B]B\n"},
        {"a line whose keyword is cut by the selection stays", invert, U"I\n[SCENERY_P]ACK B\n",
         U"I\n[SCENERY_P]ACK B\n"},
        {"the first line never changes", invert, U"[SCENERY_PACK A\n]", U"[SCENERY_PACK A\n]"},
        {"a line end at the very start of the text is not drawn in", invert, U"\n[SCENERY_PACK A]\n",
         U"\n[SCENERY_PACK A]\n"},
        {"the last line without a line end loses its last character in the selection", invert, U"I\nSCENERY_PACK A|b",
         U"I\n[SCENERY_PACK_DISABLED A]b"},
        {"other lines pass through", invert, U"I\n[# SCENERY_PACK A\n SCENERY_PACK B\nSCENERY_PACKC\n]",
         U"I\n[# SCENERY_PACK A\n SCENERY_PACK B\nSCENERY_PACKC\n]"},
        {"small letters match, and come out in capitals", invert, U"I\n|scenery_pack x\n",
         U"I\n[SCENERY_PACK_DISABLED x]\n"},
        {"a carriage return stays what it is", invert, U"I\n[SCENERY_PACK A\r\nSCENERY_PACK_DISABLED B\r]\n",
         U"I\n[SCENERY_PACK_DISABLED A\r\nSCENERY_PACK B\r]\n"},
    };
    for (const Row& row : rows) {
        const Marked before(row.before), after(row.after);
        const std::optional<AfterToggle> toggled = Toggle(before.text, before.selection, row.mode);
        ASSERT_TRUE(toggled) << row.name;
        EXPECT_EQ(toggled->text, after.text) << row.name;
        EXPECT_EQ(toggled->selection, after.selection) << row.name;
        ExpectLawfulToggles(before.text, before.selection);
    }
}

TEST(Toggling, NothingToSelectChangesNothing)
{
    for (const StringView marked : {U"|", U"I\n|\nx", U"I\n|"}) {
        const Marked before(marked);
        EXPECT_FALSE(ToggleLines(before.text, before.selection, invert)) << before.text.size();
    }
}

} // namespace
