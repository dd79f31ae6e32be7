#include "tests/toolkit/WidgetTest.h"
#include "toolkit/Color.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/DesktopWindow.h"

#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

constexpr ColorGroup red{0xFF0000}, orange{0xFF7F00};

/// "ab" is red.
std::vector<ColorSpan> ColourAb(StringView line)
{
    const Int64 at = IndexOf(line, U"ab");
    return at < 0 ? std::vector<ColorSpan>() : std::vector<ColorSpan>{{at, 2, red}};
}

struct TextAreaTest : ::testing::Test {
    TextDocument document{{ColourAb, orange}};
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
    {"separators of Unicode", U"a\u2028b\u2029c\u206f\r\n"},
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
    editor->hide(); // Looking for a font for each of them takes its time.
    area.SetText(all);
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

TEST_F(TextAreaTest, TellsColorsToAScreenReader)
{
    area.SetDocument(document);
    const Int64 marks[] = {3};
    document.SetText(U"😀a\nabc\nab", marks);
    const std::string expected[] = {
        "", "", "", "", "rgb(255,0,0)", "rgb(255,0,0)", "rgb(255,127,0)", "", "rgb(255,0,0)", "rgb(255,0,0)"};
    for (int position = 0; position < 10; ++position)
        EXPECT_EQ(ColorAt(*editor, position), expected[position]) << position;
    EXPECT_EQ(document.Marks(), std::vector<Int64>{3});
    area.SetText(U"plain");
    EXPECT_EQ(document.Text(), U"plain") << "the area's text is that of its document";
}

TEST_F(TextAreaTest, CarriageReturnsAreDrawnAsWhatTheyAre)
{
    const auto drawn = [this](StringView text) {
        area.SetText(text);
        return editor->grab().toImage();
    };
    editor->setCursorWidth(0);
    EXPECT_EQ(drawn(U"I\r\n1000 version\r\nSCENERY\r\n"), drawn(U"I\n1000 version\nSCENERY\n"));
    EXPECT_EQ(drawn(U"I\r1000\rSCENERY"), drawn(U"I\n1000\nSCENERY"));
    EXPECT_NE(drawn(U"a\u206fb"), drawn(U"ab"));
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

} // namespace
