#include "tests/toolkit/DocumentsTest.h"

#include <QAccessible>

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

TEST_F(Documents, PlacesCountCharacters)
{
    area.SetText(U"ab");
    editor->insertPlainText(QString::fromUtf8("😀"));
    EXPECT_EQ(area.SelectionStart(), 1) << "a wide character that came by typing";

    area.SetText(U"a😀\r\né😀b");
    const std::tuple<Int64, Int64, StringView> selections[] = {
        {1, 1, U"😀"}, {2, 2, U"\r\n"}, {4, 99, U"é😀b"}, {99, 1, U""}, {0, 0, U""}};
    for (const auto& [start, length, selected] : selections) {
        area.Select(start, length);
        EXPECT_EQ(area.SelectedText(), selected) << start;
        EXPECT_EQ(Selection(), std::pair(std::min<Int64>(start, 7), std::ssize(selected))) << start;
    }
}

TEST_F(Documents, KeysThatTypeNoLetter)
{
    area.SetText(U"mark");
    Press(Qt::Key_End);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Press(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(area.Text(), U"mark\n") << "Alt with a letter types nothing";
    DesktopTextArea next(window, {0, 0, 10, 10, Lock::Left | Lock::Top, 0});
    Press(Qt::Key_Tab);
    EXPECT_EQ(area.Text(), U"mark\n");
    EXPECT_EQ(window.Focus(), &next);
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
    EXPECT_NE(drawn(U"a\u206fb"), drawn(U"ab"));
    // A line of a million letters is laid out at once.
    EXPECT_NE(drawn(String(1'000'000, U'x')), drawn(U"x"));

    const QImage broken = drawn(U"I\n1000"), ended = drawn(U"I\r\n1000");
    area.Select(3, 0);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(std::pair(area.Text(), area.SelectionStart()), std::pair(String(U"I\r1000"), Int64{2}));
    EXPECT_EQ(editor->grab().toImage(), broken) << "without its LF it is one alone";
    Press(Qt::Key_Return);
    EXPECT_EQ(editor->grab().toImage(), ended);
    Press(Qt::Key_Z, Qt::ControlModifier);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(area.Text(), U"I\r\n1000");
    EXPECT_EQ(editor->grab().toImage(), ended);
}

} // namespace
