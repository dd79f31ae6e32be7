#include "tests/toolkit/DocumentsTest.h"

namespace {

TEST_F(Documents, GiveBackEveryCharacterThatTheyWereGivenTypedOrPasted)
{
    const std::pair<const char*, StringView> rows[] = {
        {"nothing", U""},
        {"a last line without its end", U"a\nb"},
        {"one line end", U"\n"},
        {"doubled last line ends", U"a\n\n\n"},
        {"line ends of other systems", U"a\rb\r\nc\n\rd"},
        {"NUL, tab and other controls", std::u32string_view(U"\0a\0\t\u0001\u001b\v\f\u0085", 9)},
        {"separators of Unicode", U"a\u2028b\u2029c\u206f\r\n"},
        {"characters that bound frames", U"\ufdd0a\ufdd1\ufdcf\ufdd2"},
        {"characters around those of pairs", U"\ud7ff\ue000"},
        {"blanks that don't break", U"\u00a02024\u00a0\u202f"},
        {"marks of byte order and objects", U"\ufeffa\ufffc\ufffe\uffff\ufffd"},
        {"characters beyond 16 bits, beside carried ones", U"\U00010000\r\U0010ffff\u2028😀"},
        {"combining and right-to-left characters", U"e\u0301 \u05d0\u202e\u200f"},
    };
    for (const auto& [name, text] : rows) {
        area.SetText(text);
        EXPECT_EQ(area.Text(), text) << name;
        Press(Qt::Key_X);
        EXPECT_EQ(area.Text(), U"x" + String(text)) << name << ", after typing";
        Undo();
        Undo();
        EXPECT_EQ(area.Text(), text) << name << ", after undoing, with nothing left to undo";
        if (text.empty()) continue;
        editor->selectAll();
        Press(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(area.Text(), U"") << name << ", cut";
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(area.Text(), text) << name << ", pasted";
    }
}

TEST_F(Documents, CarriageReturnsAreDrawnAsWhatTheyAre)
{
    const auto drawn = [this](StringView text) {
        area.SetText(text);
        return editor->grab().toImage();
    };
    editor->setCursorWidth(0);
    EXPECT_EQ(drawn(U"I\r\n1000 version\r\nSCENERY\r\n"), drawn(U"I\n1000 version\nSCENERY\n"));
    EXPECT_EQ(drawn(U"I\r1000\rSCENERY"), drawn(U"I\n1000\nSCENERY"));
    // A line of a million letters is laid out at once.
    EXPECT_NE(drawn(String(1'000'000, U'x')), drawn(U"x"));

    const QImage broken = drawn(U"I\n1000"), ended = drawn(U"I\r\n1000");
    area.Select(3, 0);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(std::pair(area.Text(), area.SelectionStart()), std::pair(String(U"I\r1000"), Int64{2}));
    EXPECT_EQ(editor->grab().toImage(), broken) << "without its LF it is one alone";
    Undo();
    EXPECT_EQ(editor->grab().toImage(), ended);
}

} // namespace
