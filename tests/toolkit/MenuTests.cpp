#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/Dialogs.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace {

struct MenuTest : ::testing::Test {
    DesktopWindow window{{.title = U"Menus", .width = 300, .height = 200, .hasMenuBar = true}};
    DesktopTextField field{window, {0, 0, 200, 22, Lock::Left | Lock::Top, 0}, U"abc"};
    DesktopTextArea area{window, {0, 40, 200, 80, Lock::Left | Lock::Top, 1}};
    DesktopButton button{window, {0, 150, 100, 20, Lock::Left | Lock::Top, 2}, U"Button"};
    int opened = 0, checked = 0;

    void SetUp() override
    {
        testMenus.open.Enabled = true;
        testMenus.open.Action = [this] { ++opened; };
        testApplication->MenuBarSelected = [this] { ++checked; };
        ShowActive(window);
        QApplication::clipboard()->setText(QStringLiteral("clip"));
    }
    void TearDown() override { testApplication->MenuBarSelected = nullptr; }

    static QAction& Item(const char* name)
    {
        return *QApplication::activeWindow()->findChild<QAction*>(QLatin1String(name));
    }
    /// Which of the items are enabled while the menu is open.
    static std::string Enabled(const char* menu, std::initializer_list<const char*> items)
    {
        auto& list = Find<QMenu>(menu);
        list.popup({0, 0});
        std::string enabled;
        for (const char* item : items)
            if (Item(item).isEnabled()) enabled.append(item).append(" ");
        list.close();
        return enabled;
    }
};

TEST_F(MenuTest, ShortcutsAreThoseOfTheTextAndEachItemHasAKey)
{
    QString keys;
    for (const char* item : {"Open", "Archive", "Quit", "Preferences", "Clear"})
        keys += Item(item).text() + " " + Item(item).shortcut().toString(QKeySequence::PortableText) + " ";
    EXPECT_EQ(keys, "&Ouvrir… Ctrl+Shift+O &Archive… Ctrl+Alt+O &Quit Ctrl+Q &Préférences… Ctrl+, &Effacer  ");
}

TEST_F(MenuTest, ItemsAreCheckedWhenTheyAreToAct)
{
    const auto press = [] {
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    };
    press();
    EXPECT_EQ(std::pair(opened, checked), std::pair(1, 1));
    testApplication->MenuBarSelected = [] { testMenus.open.Enabled = false; };
    press();
    EXPECT_EQ(opened, 1) << "disabled by the check, the item doesn't act";
    EXPECT_EQ(Enabled("File", {"Open", "Archive", "Quit"}), "Archive Quit ");
    testApplication->MenuBarSelected = [] { testMenus.open.Enabled = true; };
    press();
    EXPECT_EQ(opened, 2) << "the shortcut acts again as soon as the item is enabled";
}

TEST_F(MenuTest, EditItemsServeTheControlWithTheFocus)
{
    const auto enabled = [] { return Enabled("Edit", {"Undo", "Cut", "Copy", "Paste", "Clear", "SelectAll"}); };
    button.SetFocus();
    EXPECT_EQ(enabled(), "") << "no text has the focus";
    field.SetFocus();
    QApplication::activeWindow()->findChild<QMenuBar*>()->setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(enabled(), "Paste SelectAll ") << "opened by a key";
    field.SetFocus();
    const std::tuple<const char*, StringView, const char*> steps[] = {
        {"SelectAll", U"abc", "Cut Copy Paste Clear SelectAll "}, {"Clear", U"", "Undo Paste "},
        {"Undo", U"abc", "Cut Copy Paste Clear SelectAll "},      {"Redo", U"", "Undo Paste "},
        {"Undo", U"abc", "Cut Copy Paste Clear SelectAll "},
    };
    for (const auto& [item, text, after] : steps) {
        Item(item).trigger();
        EXPECT_EQ(field.Text(), text) << item;
        EXPECT_EQ(enabled(), after) << item;
    }
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_X, Qt::Key_V})
        QTest::keyClick(&WidgetOf(field), key, Qt::ControlModifier);
    EXPECT_EQ(field.Text(), U"abc") << "once, not once for the field and once for the menu";

    area.SetText(U"x\u2028\ny");
    area.SetFocus();
    for (const char* item : {"SelectAll", "Cut", "Paste", "Paste"})
        Item(item).trigger();
    EXPECT_EQ(area.Text(), U"x\u2028\nyx\u2028\ny");
    QApplication::clipboard()->clear();
    EXPECT_EQ(enabled(), "Undo SelectAll ");
    EXPECT_EQ(field.Text(), U"abc") << "the other control is left alone";
}

TEST_F(MenuTest, ABlockedWindowDropsWhatAScreenReaderDoes)
{
    DesktopPopupMenu popup(window, {100, 150, 100, 20}, U"one\ntwo", 0);
    DesktopSegmentedButton segment(window, {200, 150, 100, 20}, U"Segment");
    std::string events;
    button.Pressed = [&] { events += "button "; };
    segment.Pressed = [&](int) { events += "segment "; };
    popup.SelectionChanged = [&] { events += "popup "; };
    testMenus.open.Action = [&] { events += "menu "; };
    const auto act = [&] {
        QAccessibleInterface* const edit = QAccessible::queryAccessibleInterface(&Find<QMenu>("Edit"));
        PressByScreenReader(edit->child(edit->childCount() - 2)); // Select all.
        if (WidgetOf<QLineEdit>(field).hasSelectedText()) events += "select ";
        PressByScreenReader(QAccessible::queryAccessibleInterface(&Find<QMenu>("File"))->child(0));
        WidgetOf<QComboBox>(popup).setCurrentIndex(1);
        for (auto* pressed : {&WidgetOf<QPushButton>(button), &WidgetOf<QPushButton>(segment)}) {
            PressByScreenReader(QAccessible::queryAccessibleInterface(pressed));
            EXPECT_TRUE(QTest::qWaitFor([&] { return !pressed->isDown(); }));
        }
        if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
    };
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"a dialog that hangs on the window", [&] { static_cast<void>(MessageDialog{}.ShowModal(&window)); }},
        {"a dialog that hangs on nothing", [] { MessageBox(U"Note"); }},
        {"a cover", [&] { window.BlockKeyboard(true), QApplication::processEvents(), window.BlockKeyboard(false); }},
        {"a long walk", [] { DesktopApplication::YieldToPlatform(); }},
        {"", [] { QApplication::processEvents(); }},
    };
    for (const auto& [blocked, block] : rows) {
        ShowActive(window);
        field.SetFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return WidgetOf(field).hasFocus(); }));
        QTimer::singleShot(0, qApp, act);
        block();
        EXPECT_EQ(events, *blocked ? "" : "select menu popup button segment ") << blocked;
        EXPECT_EQ(popup.SelectedRowIndex(), *blocked ? 0 : 1) << blocked;
        EXPECT_EQ(segment.Selected(0), !*blocked) << blocked;
    }
}

} // namespace
