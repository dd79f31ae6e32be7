#include "tests/toolkit/WidgetTest.h"

#include <QContextMenuEvent>
#include <QFontInfo>

namespace {

using namespace std::string_view_literals;

QAccessibleInterface* Told(DesktopUIControl& control)
{
    return QAccessible::queryAccessibleInterface(&WidgetOf(control));
}

struct ControlTest : ::testing::Test {
    DesktopWindow window{{.title = U"Controls", .width = 400, .height = 300}};
};

TEST_F(ControlTest, CaptionsAreLiteral)
{
    for (StringView caption : {U"A & B", U"&Quit", U"&&", U"a&&&b", U"plain", U"", U"<b>no mark-up</b>"}) {
        DesktopButton button(window, {0, 0, 200, 20}, caption);
        EXPECT_EQ(button.Caption(), caption);
        EXPECT_TRUE(WidgetOf<QPushButton>(button).shortcut().isEmpty());
        DesktopLabel label(window, {0, 0, 200, 20}, caption);
        EXPECT_EQ(label.Text(), caption);
        EXPECT_EQ(FromQt(Told(label)->text(QAccessible::Name)), caption);
        EXPECT_EQ(DesktopPopupMenu(window, {0, 0, 200, 20}, caption, 0).SelectedRowText(), caption);
    }
}

TEST_F(ControlTest, CaptionsFitTheirControls)
{
    const std::tuple<const char*, StringView, int, int, int, int> rows[] = {
        {"a short caption has the size of the layout", U"Ok", 100, 0, 12, 12},
        {"a caption a little too wide gets smaller", U"Activer / Désactiver", 125, 0, 9, 11},
        {"none gets smaller than 9", U"Sélectionner un dossier pour les archives", 60, 0, 9, 9},
        {"a size of its own", U"☞", 38, 18, 18, 18},
    };
    for (const auto& [name, caption, width, ownSize, smallest, largest] : rows) {
        DesktopButton button(window, {0, 0, width, 20}, caption, ownSize);
        const auto& widget = WidgetOf<QPushButton>(button);
        const int size = QFontInfo(widget.font()).pixelSize();
        EXPECT_TRUE(size >= smallest && size <= largest) << name << ": " << size;
        EXPECT_TRUE(size == 9 || widget.fontMetrics().horizontalAdvance(widget.text()) <= width) << name;
        button.SetCaption(U"Ok");
        EXPECT_EQ(QFontInfo(widget.font()).pixelSize(), ownSize ? ownSize : 12) << name << ", then a short one";
    }
    const QFont before = QApplication::font();
    for (const auto& [desktop, expected] : {std::pair(6, 12), {13, 13}, {27, 14}}) {
        QFont font = before;
        font.setPixelSize(desktop);
        QApplication::setFont(font);
        DesktopWindow large({.title = U"Large", .width = 200, .height = 100});
        DesktopButton button(large, {0, 0, 100, 20}, U"Ok");
        EXPECT_EQ(QFontInfo(WidgetOf(button).font()).pixelSize(), expected) << "the desktop's font has " << desktop;
    }
    QApplication::setFont(before);
}

TEST_F(ControlTest, FieldsKeepTheirText)
{
    DesktopTextField field(window, {0, 0, 200, 22}, U"first");
    ShowActive(window);
    for (StringView text : {U"a\nb\r\n\u2028\u2029c\td"sv, U"a\0b"sv, U"\ufeff😀\u00a0"sv}) {
        field.SetText(text);
        EXPECT_EQ(field.Text(), text);
    }
    const String longText(100'000, U'x');
    field.SetText(longText);
    QTest::keyClicks(&WidgetOf(field), QStringLiteral("y"));
    EXPECT_EQ(field.Text(), U"y" + longText);
}

TEST_F(ControlTest, CodeFiresNoEvents)
{
    DesktopPopupMenu popup(window, {0, 0, 200, 20}, U"one\ntwo\nthree", 2);
    DesktopSegmentedButton segment(window, {0, 30, 100, 24}, U"Segment");
    std::vector<int> events;
    popup.SelectionChanged = [&] { events.push_back(popup.SelectedRowIndex()); };
    segment.Pressed = [&](int index) { events.push_back(index); };
    ShowActive(window);

    popup.SetSelectedRowIndex(0);
    segment.SetSelected(0, true);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(popup.SelectedRowText(), U"one");
    for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
        QTest::keyClick(&WidgetOf(popup), key);
    EXPECT_EQ(events, (std::vector{1, 0})) << "the key that changes no row fires nothing";
}

TEST_F(ControlTest, ALinkIsPressedByMouseKeysAndAScreenReader)
{
    DesktopLabel link(window, {100, 100, 50, 16, Lock::Left | Lock::Top, 0}, U"v.1", {.link = true});
    DesktopButton button(window, {0, 0, 80, 20, Lock::Left | Lock::Top, 2}, U"Ok");
    int pressed = 0, defaults = 0;
    link.Pressed = [&] { ++pressed; };
    button.SetDefault();
    button.Pressed = [&] { ++defaults; };
    ShowActive(window);
    QWidget* const widget = &WidgetOf(link);
    for (const auto& [place, presses] : {std::pair(QPoint(49, 15), 1), {QPoint(10, -1), 1}}) {
        QTest::mousePress(widget, Qt::LeftButton, {}, {10, 5});
        QTest::mouseRelease(widget, Qt::LeftButton, {}, place);
        QTest::mouseClick(widget, Qt::RightButton, {}, {10, 5});
        EXPECT_EQ(pressed, presses) << "no release beside it, and no right button";
    }
    link.SetFocus();
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(widget, key);
    EXPECT_EQ(Told(link)->role(), QAccessible::Link);
    PressByScreenReader(Told(link));
    EXPECT_EQ(pressed, 5);
    link.SetEnabled(false);
    PressByScreenReader(Told(link));
    button.SetVisible(false);
    WidgetOf<QPushButton>(button).click();
    EXPECT_TRUE(pressed == 5 && defaults == 0) << "nothing that is disabled or hidden acts";
}

TEST_F(ControlTest, AFieldTidiesWhatIsPastedOrTyped)
{
    DesktopTextField field(window, {0, 0, 300, 22});
    field.Tidied = [](StringView text) { return (text.starts_with(U'/') ? U"form of " : U"") + String(text); };
    ShowActive(window);
    auto* const line = &WidgetOf<QLineEdit>(field);
    const struct {
        const char* name;
        int selected;
        const char *pasted, *after;
    } rows[] = {
        {"a path takes the whole place", 0, "/usr", "form of /usr"},
        {"blanks around a path", 2, " /usr\n", "form of /usr"},
        {"another text goes in at the caret", 0, "x y", "x ybefore"},
        {"without blanks around it", 6, "\t x y \r\n", "x y"},
    };
    for (const auto& row : rows) {
        field.SetText(U"before");
        line->setSelection(0, row.selected);
        QApplication::clipboard()->setText(row.pasted);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(line->text(), row.after) << row.name;
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(line->text(), "before") << row.name;
    }
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), line->mapToGlobal(QPoint(5, 5)));
    QApplication::clipboard()->setText("/usr");
    QApplication::sendEvent(line, &menu);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_L);
    EXPECT_EQ(line->text(), "form of /usr") << "by the context menu";
}

} // namespace
