#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopWindow.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

namespace {

/// What a screen reader calls the control, which is also the caption of one that has no other name.
String NameOf(DesktopUIControl& control)
{
    control.SetName(U"asked");
    return QAccessible::queryAccessibleInterface(&Find<QWidget>("asked"))->text(QAccessible::Name).toStdU32String();
}

struct ControlTest : ::testing::Test {
    DesktopWindow window{{.title = U"Controls", .width = 400, .height = 300}};
};

TEST_F(ControlTest, CaptionsAreLiteral)
{
    for (StringView caption : {U"A & B", U"&Quit", U"&&", U"a&&&b", U"plain", U""}) {
        DesktopButton button(window, {0, 0, 200, 20}, caption);
        button.SetName(U"button");
        EXPECT_EQ(button.Caption(), caption);
        EXPECT_TRUE(Find<QPushButton>("button").shortcut().isEmpty());
        DesktopLabel label(window, {0, 0, 200, 20}, caption);
        EXPECT_EQ(label.Text(), caption);
        EXPECT_EQ(NameOf(label), caption);
        DesktopPopupMenu popup(window, {0, 0, 200, 20}, caption, 0);
        EXPECT_EQ(popup.SelectedRowText(), caption);
    }
    DesktopLabel label(window, {0, 0, 200, 20}, U"<b>no mark-up</b>");
    EXPECT_EQ(NameOf(label), U"<b>no mark-up</b>");
    label.SetAccessibleName(U"another name");
    EXPECT_EQ(NameOf(label), U"another name");
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
        button.SetName(U"button");
        const QPushButton& widget = Find<QPushButton>("button");
        const int size = QFontInfo(widget.font()).pixelSize();
        EXPECT_GE(size, smallest) << name;
        EXPECT_LE(size, largest) << name;
        EXPECT_TRUE(size == 9 || widget.fontMetrics().horizontalAdvance(widget.text()) <= width) << name;
        button.SetCaption(U"Ok");
        EXPECT_EQ(QFontInfo(widget.font()).pixelSize(), ownSize ? ownSize : 12) << name << ", then a short one";
    }
}

TEST_F(ControlTest, CaptionsFollowTheDesktopsFontAsFarAsThereIsRoom)
{
    const QFont before = QApplication::font();
    for (const auto& [desktop, expected] : {std::pair(6, 12), std::pair(13, 13), std::pair(27, 14)}) {
        QFont font = before;
        font.setPixelSize(desktop);
        QApplication::setFont(font);
        DesktopWindow large({.title = U"Large", .width = 200, .height = 100});
        DesktopButton button(large, {0, 0, 100, 20}, U"Ok");
        button.SetName(U"large");
        EXPECT_EQ(QFontInfo(Find<QPushButton>("large").font()).pixelSize(), expected) << desktop;
    }
    QApplication::setFont(before);
}

TEST_F(ControlTest, FieldsKeepTheirText)
{
    DesktopTextField field(window, {0, 0, 200, 22}, U"first");
    field.SetName(U"field");
    ShowActive(window);
    for (StringView text :
         {StringView(U"a\nb\r\n\u2028\u2029c\td"), StringView(U"a\0b", 3), StringView(U"\ufeff😀\u00a0")}) {
        field.SetText(text);
        EXPECT_EQ(field.Text(), text);
    }
    const String longText(100'000, U'x');
    field.SetText(longText);
    EXPECT_EQ(field.Text().size(), longText.size());
    QTest::keyClicks(&Find<QLineEdit>("field"), QStringLiteral("y"));
    EXPECT_EQ(field.Text(), U"y" + longText);
    const QPalette palette = Find<QLineEdit>("field").palette();
    EXPECT_EQ(palette.color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::black));
}

TEST_F(ControlTest, CodeFiresNoEvents)
{
    DesktopPopupMenu popup(window, {0, 0, 200, 20}, U"one\ntwo\nthree", 2);
    DesktopSegmentedButton segment(window, {0, 30, 100, 24}, U"Segment");
    popup.SetName(U"popup");
    segment.SetName(U"segment");
    std::vector<int> events;
    popup.SelectionChanged = [&] { events.push_back(popup.SelectedRowIndex()); };
    segment.Pressed = [&](int index) { events.push_back(10 + index + (segment.Selected(index) ? 1 : 0)); };
    ShowActive(window);

    popup.SetSelectedRowIndex(0);
    segment.SetSelected(0, true);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(popup.SelectedRowText(), U"one");
    EXPECT_TRUE(segment.Selected(0));
    EXPECT_FALSE(segment.Selected(1));

    auto& rows = Find<QComboBox>("popup");
    QTest::keyClick(&rows, Qt::Key_Down);
    QTest::keyClick(&rows, Qt::Key_Up);
    QTest::keyClick(&rows, Qt::Key_Up);
    EXPECT_EQ(events, (std::vector{1, 0})) << "the key that changes no row fires nothing";
    events.clear();
    QTest::mouseClick(&Find<QPushButton>("segment"), Qt::LeftButton);
    QTest::keyClick(&Find<QPushButton>("segment"), Qt::Key_Space);
    EXPECT_EQ(events, (std::vector{10, 11})) << "the segment comes up, then goes down";
}

TEST_F(ControlTest, ALinkIsPressedByMouseKeysAndAScreenReader)
{
    DesktopLabel link(window, {100, 100, 50, 16, Lock::Left | Lock::Top, 0}, U"v.1", {.link = true});
    DesktopButton button(window, {0, 0, 80, 20, Lock::Left | Lock::Top, 2}, U"Ok");
    DesktopLabel plain(window, {0, 0, 50, 16, Lock::Left | Lock::Top, 1}, U"plain");
    link.SetName(U"link"), plain.SetName(U"plain"), button.SetName(U"button");
    int pressed = 0, defaults = 0;
    link.Pressed = [&] { ++pressed; };
    button.SetDefault();
    button.Pressed = [&] { ++defaults; };
    ShowActive(window);
    QWidget* const widget = &Find<QLabel>("link");
    QTest::mousePress(widget, Qt::LeftButton, {}, {10, 5});
    EXPECT_EQ(pressed, 0);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, {49, 15});
    EXPECT_EQ(pressed, 1);
    QTest::mousePress(widget, Qt::LeftButton, {}, {10, 5});
    QTest::mouseRelease(widget, Qt::LeftButton, {}, {10, -1});
    QTest::mouseClick(widget, Qt::RightButton, {}, {10, 5});
    EXPECT_EQ(pressed, 1) << "no release beside it, and no right button";

    link.SetFocus();
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(widget, key);
    EXPECT_EQ(pressed, 4);
    EXPECT_EQ(defaults, 0);
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
    EXPECT_EQ(told->role(), QAccessible::Link);
    EXPECT_EQ(told->text(QAccessible::Name), "v.1");
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(pressed, 5);
    link.SetEnabled(false);
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    button.SetVisible(false);
    Find<QPushButton>("button").click();
    EXPECT_TRUE(pressed == 5 && defaults == 0) << "nothing that is disabled or hidden acts";
    EXPECT_EQ(widget->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(Find<QLabel>("plain").focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Find<QLabel>("plain"))->role(), QAccessible::StaticText);
}

struct TextFieldTest : testing::Test {
    DesktopWindow window{{.title = U"Items", .width = 300, .height = 100}};
    DesktopTextField field{window, {0, 0, 300, 22}};
    QLineEdit* line = nullptr;

    void SetUp() override
    {
        field.SetName(U"items");
        ShowActive(window);
        line = &Find<QLineEdit>("items");
        field.Tidied = [](StringView text) {
            return text.starts_with(U'/') ? U"form of " + String(text) : String(text);
        };
    }
    void Paste(const char* text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(TextFieldTest, TidiesWhatIsPasted)
{
    struct Row {
        const char* name;
        int selected;
        const char *pasted, *after;
    };
    for (const Row& row : {Row{"a path takes the whole place", 0, "/usr", "form of /usr"},
                           Row{"blanks around a path", 2, " /usr\n", "form of /usr"},
                           Row{"another text goes in at the caret", 0, "x y", "x ybefore"},
                           Row{"without blanks around it", 6, "\t x y \r\n", "x y"}}) {
        field.SetText(U"before");
        line->setSelection(0, row.selected);
        Paste(row.pasted);
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

TEST_F(TextFieldTest, TidiesWhatWasTypedWhenItIsLeftConfirmedOrAskedFor)
{
    DesktopTextField other(window, {0, 30, 300, 22});
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"left", [&] { other.SetFocus(); }},
        {"confirmed", [&] { QTest::keyClick(line, Qt::Key_Return); }},
        {"asked for", [&] { static_cast<void>(field.Text()); }},
    };
    for (const auto& [name, end] : ends) {
        field.SetText(U"/set by the program");
        field.SetFocus();
        end();
        EXPECT_EQ(line->text(), "/set by the program") << name;
        field.SetFocus();
        line->selectAll();
        QTest::keyClicks(line, "/usr ");
        EXPECT_EQ(line->text(), "/usr ") << name;
        end();
        EXPECT_EQ(line->text(), "form of /usr") << name;
    }
}

TEST_F(TextFieldTest, TellsOfDroppedItemsAndShowsWhichItTakes)
{
    std::vector<String> dropped;
    field.ItemDropped = [&](const FolderItem& item) { dropped.push_back(item.NativePath()); };
    field.TakesItem = [](const FolderItem& item) { return item.Name() == U"usr"; };
    const auto drag = [&](const QStringList& items) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& item : items)
            urls << QUrl::fromLocalFile(item);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(line, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted()) QApplication::sendEvent(line, &drop);
        return enter.isAccepted() ? enter.dropAction() : Qt::TargetMoveAction;
    };
    EXPECT_EQ(drag({"/usr"}), Qt::CopyAction);
    EXPECT_EQ(drag({"/etc"}), Qt::IgnoreAction) << "the pointer shows that it is refused";
    EXPECT_EQ(drag({"/usr", "/etc"}), Qt::TargetMoveAction) << "two items";
    EXPECT_EQ(dropped, (std::vector<String>{U"/usr", U"/etc"}));
    EXPECT_EQ(line->text(), "");
}

} // namespace
