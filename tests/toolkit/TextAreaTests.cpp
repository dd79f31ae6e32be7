#include "tests/toolkit/WidgetTest.h"
#include "toolkit/Color.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/DesktopWindow.h"

#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace {

constexpr ColorGroup red{0xFF0000}, green{0x00C800}, orange{0xFF7F00};

struct TextAreaTest : ::testing::Test {
    DesktopWindow window{{.title = U"Text", .width = 300, .height = 200}};
    DesktopTextArea area{window, {0, 0, 300, 200}};
    QPlainTextEdit* editor = nullptr;

    void SetUp() override
    {
        area.SetName(U"area");
        ShowActive(window);
        area.SetFocus();
        editor = &Find<QPlainTextEdit>("area");
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(editor, key, modifiers);
    }
};

const std::pair<const char*, StringView> awkward[] = {
    {"nothing", U""},
    {"a last line without its end", U"a\nb"},
    {"one line end", U"\n"},
    {"doubled last line ends", U"a\n\n\n"},
    {"line ends of other systems", U"a\rb\r\nc\n\rd"},
    {"NUL, tab and other controls", std::u32string_view(U"\0a\0\t\u0001\u001b\v\f\u0085", 9)},
    {"separators of Unicode", U"a\u2028b\u2029c"},
    {"characters that bound frames", U"\ufdd0a\ufdd1\ufdcf\ufdd2"},
    {"blanks that don't break", U"\u00a02024\u00a0\u202f"},
    {"marks of byte order and objects", U"\ufeffa\ufffc\ufffe\uffff\ufffd"},
    {"characters beyond 16 bits, beside carried ones", U"\U00010000\r\U0010ffff\u2028😀"},
    {"combining and right-to-left characters", U"e\u0301 \u05d0\u202e\u200f"},
};

TEST_F(TextAreaTest, GivesBackWhatItWasGiven)
{
    for (const auto& [name, text] : awkward) {
        area.SetText(text);
        EXPECT_EQ(area.Text(), text) << name;

        Press(Qt::Key_X);
        EXPECT_EQ(area.Text(), U"x" + String(text)) << name << ", after typing";
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(area.Text(), text) << name << ", after undoing";
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(area.Text(), text) << name << ", with nothing left to undo";
    }
}

TEST_F(TextAreaTest, GivesBackEveryCharacter)
{
    String all;
    for (char32_t character = 0; character <= 0x10FFFF; ++character)
        if ((character < 0xD800 || character > 0xDFFF) && character % 0x10000 < (character < 0x10000 ? 0x10000 : 64))
            all += character;
    std::vector<ColorSpan> colors;
    for (Int64 i = 0; i < static_cast<Int64>(all.size()); i += 5)
        colors.push_back({i, 3, i % 2 == 0 ? red : green});
    editor->hide(); // Looking for a font for each of them takes its time.
    area.SetStyledText(all, colors);
    EXPECT_TRUE(area.Text() == all);
    area.SetText(U"");
}

TEST_F(TextAreaTest, ClipboardCarriesEveryCharacter)
{
    for (const auto& [name, text] : awkward) {
        if (text.empty()) continue;
        area.SetText(text);
        editor->selectAll();
        Press(Qt::Key_C, Qt::ControlModifier);
        area.SetText(U"");
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(area.Text(), text) << name;
    }
    auto* formatted = new QMimeData;
    formatted->setHtml(QStringLiteral("<b>bold</b>"));
    formatted->setText(QStringLiteral("plain"));
    QApplication::clipboard()->setMimeData(formatted);
    area.SetText(U"");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(area.Text(), U"plain");
    EXPECT_FALSE(editor->textCursor().charFormat().font().bold());
}

TEST_F(TextAreaTest, KeysOfLineEndsAndTab)
{
    area.SetText(U"ab");
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(area.Text(), U"a\n\nb");
    DesktopTextArea next(window, {0, 0, 10, 10, Lock::Left | Lock::Top, 0});
    Press(Qt::Key_Tab);
    EXPECT_EQ(area.Text(), U"a\n\nb") << "the Tab key goes on to the next control";
}

TEST_F(TextAreaTest, OffsetsCountCharacters)
{
    const std::tuple<const char*, std::u32string_view, int, Int64> rows[] = {
        {"a narrow text", U"ab\ncd", 3, 3},
        {"behind a character of two units", U"a😀b", 2, 2},
        {"behind several of them and a line end", U"😀\n😀😀x", 4, 4},
        {"behind a carried character", U"\u2028\r\u2028x", 3, 3},
    };
    for (const auto& [name, text, steps, start] : rows) {
        area.SetText(text);
        for (int i = 0; i < steps; ++i)
            Press(Qt::Key_Right);
        EXPECT_EQ(area.SelectionStart(), start) << name;
        EXPECT_EQ(area.SelectionLength(), 0) << name;
        Press(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(area.SelectionStart(), 0) << name;
        EXPECT_EQ(area.SelectionLength(), start) << name;
    }

    area.SetText(U"ab");
    editor->insertPlainText(QString::fromUtf8("😀"));
    EXPECT_EQ(area.SelectionStart(), 1) << "a wide character that came by typing";
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(area.SelectionStart(), 0);
}

/// The colour of the character behind `offset` as a screen reader is told it, or "" for that of plain text.
std::string ColorAt(QPlainTextEdit& editor, int offset)
{
    int start = 0, end = 0;
    const QString attributes =
        QAccessible::queryAccessibleInterface(&editor)->textInterface()->attributes(offset, &start, &end);
    const qsizetype color = attributes.indexOf(QLatin1String("color:"));
    return color < 0 ? "" : attributes.mid(color + 6).section(u';', 0, 0).toStdString();
}

TEST_F(TextAreaTest, ShowsColors)
{
    area.SetText(U"before");
    Press(Qt::Key_X);
    const std::vector<ColorSpan> colors = {{2, 5, orange}, {3, 2, red}};
    area.SetStyledText(U"😀a\nbcdefg", colors);
    EXPECT_EQ(area.Text(), U"😀a\nbcdefg");
    EXPECT_EQ(ColorAt(*editor, 2), "");
    EXPECT_EQ(ColorAt(*editor, 4), "rgb(255,0,0)");
    EXPECT_EQ(ColorAt(*editor, 6), "rgb(255,127,0)");
    EXPECT_EQ(ColorAt(*editor, 8), "");
    EXPECT_EQ(area.SelectionStart(), 0);
    EXPECT_EQ(area.SelectionLength(), 0);

    area.SetStyledText(U"abc", std::vector<ColorSpan>{{0, 3, red}});
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(area.Text(), U"abc") << "there is nothing to undo";
    Press(Qt::Key_X);
    Press(Qt::Key_Y);
    EXPECT_EQ(area.Text(), U"xyabc");
    EXPECT_EQ(ColorAt(*editor, 0), "") << "what is typed next is black";
    EXPECT_EQ(ColorAt(*editor, 1), "");
    EXPECT_EQ(ColorAt(*editor, 2), "rgb(255,0,0)");

    Press(Qt::Key_End);
    area.SetText(U"plain");
    EXPECT_EQ(ColorAt(*editor, 0), "") << "the colour at the caret doesn't stay for the next text";
}

TEST_F(TextAreaTest, BearsALongLine)
{
    const String line(1'000'000, U'x');
    area.SetText(line);
    QApplication::processEvents();
    EXPECT_EQ(area.Text().size(), line.size());
}

TEST_F(TextAreaTest, SelectsCharacters)
{
    area.SetText(U"a😀\r\né😀b");
    const std::tuple<Int64, Int64, StringView> rows[] = {
        {1, 1, U"😀"}, {2, 2, U"\r\n"}, {4, 99, U"é😀b"}, {99, 1, U""}, {0, 0, U""}};
    for (const auto& [start, length, selected] : rows) {
        area.Select(start, length);
        EXPECT_EQ(area.SelectedText(), selected) << start;
        EXPECT_EQ(area.SelectionStart(), std::min<Int64>(start, 7)) << start;
        EXPECT_EQ(area.SelectionLength(), std::ssize(selected)) << start;
    }
}

TEST_F(TextAreaTest, AReplacedTextComesBackWithItsColours)
{
    const auto colorAt = [this](int position) {
        QTextCursor cursor(editor->document());
        cursor.setPosition(position);
        return cursor.charFormat().foreground().color();
    };
    const ColorSpan before[] = {{2, 3, red}}, after[] = {{0, 1, green}};
    area.SetStyledText(U"I\nabc\n", before);
    area.Select(2, 1);
    area.ReplaceStyledText(U"xyz", after);
    EXPECT_EQ(area.Text(), U"xyz");
    EXPECT_EQ(colorAt(1), QColor(green.rgb));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(area.Text(), U"I\nabc\n");
    EXPECT_EQ(colorAt(3), QColor(red.rgb));
    EXPECT_NE(colorAt(1), QColor(green.rgb));
    EXPECT_EQ(area.SelectionStart(), 3);
}

TEST_F(TextAreaTest, AReplacedTextStaysScrolled)
{
    String text;
    for (int line = 0; line < 500; ++line)
        text += U"abc\n";
    area.SetText(text);
    area.Select(800, 0);
    area.SetVerticalScrollPosition(195);
    const int scrolled = editor->verticalScrollBar()->value();
    area.ReplaceStyledText(U"I\n" + text, {});
    EXPECT_EQ(editor->verticalScrollBar()->value(), scrolled);
    area.Select(802, 3);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->verticalScrollBar()->value(), scrolled);
}

TEST_F(TextAreaTest, ScrollsToALineOnScreen)
{
    String text;
    for (int line = 0; line < 500; ++line)
        text += line % 2 == 0 ? U"short\n" : String(120, U'w') + U"\n";
    area.SetText(text);
    const Int64 last = IndexOf(text, U"short", Int64{498} / 2 * (6 + 121));
    area.SetVerticalScrollPosition(area.LineNumber(last) - 2);
    area.Select(last, 5);
    EXPECT_TRUE(editor->viewport()->rect().contains(editor->cursorRect())) << "the match is to be seen";
    area.SetVerticalScrollPosition(area.LineNumber(0) - 2);
    EXPECT_EQ(editor->verticalScrollBar()->value(), 0);
}

} // namespace
