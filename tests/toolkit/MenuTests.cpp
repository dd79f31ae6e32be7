#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/Dialogs.h"

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
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
        TestMenus& menus = TestMenus::Current();
        menus.open.Enabled = true;
        menus.open.Action = [this] { ++opened; };
        TestApplication().MenuBarSelected = [this] { ++checked; };
        field.SetName(U"field");
        ShowActive(window);
        QApplication::clipboard()->setText(QStringLiteral("clip"));
    }
    void TearDown() override { TestApplication().MenuBarSelected = nullptr; }

    static QAction& Item(const char* name)
    {
        for (QAction* action : QApplication::activeWindow()->findChildren<QAction*>())
            if (action->objectName() == QLatin1String(name)) return *action;
        throw std::runtime_error(name);
    }
    /// Which of the items are enabled while the menu is open.
    static std::string Enabled(const char* menu, std::initializer_list<const char*> items)
    {
        auto& list = Find<QMenu>(menu);
        list.popup({0, 0});
        std::string enabled;
        for (const char* item : items)
            if (Item(item).isEnabled()) enabled += std::string(enabled.empty() ? "" : " ") + item;
        list.close();
        return enabled;
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(QApplication::activeWindow(), key, modifiers);
    }
};

TEST_F(MenuTest, ShortcutsAreThoseOfTheTextAndEachItemHasAKey)
{
    std::string keys;
    for (const char* item : {"Open", "Archive", "Quit", "Preferences", "Clear"})
        keys += Item(item).text().toStdString() + " " +
                Item(item).shortcut().toString(QKeySequence::PortableText).toStdString() + " ";
    EXPECT_EQ(keys, "&Ouvrir… Ctrl+Shift+O &Archive… Ctrl+Alt+O &Quit Ctrl+Q &Préférences… Ctrl+, &Effacer  ");
}

TEST_F(MenuTest, ItemsAreCheckedWhenTheyAreToAct)
{
    Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(checked, 1);

    TestApplication().MenuBarSelected = [] { TestMenus::Current().open.Enabled = false; };
    Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(opened, 1) << "disabled by the check, the item doesn't act";
    EXPECT_EQ(Enabled("File", {"Open", "Archive", "Quit"}), "Archive Quit");

    TestApplication().MenuBarSelected = [] { TestMenus::Current().open.Enabled = true; };
    Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(opened, 2) << "the shortcut acts again as soon as the item is enabled";
}

TEST_F(MenuTest, EditItemsServeTheControlWithTheFocus)
{
    const auto enabled = [] { return Enabled("Edit", {"Undo", "Cut", "Copy", "Paste", "Clear", "SelectAll"}); };
    button.SetFocus();
    EXPECT_EQ(enabled(), "") << "no text has the focus";
    field.SetFocus();
    EXPECT_EQ(enabled(), "Paste SelectAll");
    Item("SelectAll").trigger();
    EXPECT_EQ(enabled(), "Cut Copy Paste Clear SelectAll");
    Item("Clear").trigger();
    EXPECT_EQ(field.Text(), U"");
    EXPECT_EQ(enabled(), "Undo Paste");
    Item("Undo").trigger();
    EXPECT_EQ(field.Text(), U"abc");
    Item("Redo").trigger();
    EXPECT_EQ(field.Text(), U"");
    EXPECT_EQ(enabled(), "Undo Paste");
    Item("Undo").trigger();

    area.SetText(U"x\u2028\ny");
    area.SetFocus();
    for (const char* item : {"SelectAll", "Cut", "Paste", "Paste"})
        Item(item).trigger();
    EXPECT_EQ(area.Text(), U"x\u2028\nyx\u2028\ny");
    QApplication::clipboard()->clear();
    EXPECT_EQ(enabled(), "Undo SelectAll");
    area.SetEnabled(false);
    EXPECT_EQ(field.Text(), U"abc") << "the other control is left alone";
}

TEST_F(MenuTest, StandardKeysWorkInTheControls)
{
    field.SetFocus();
    QWidget* widget = &Find<QWidget>("field");
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(field.Text(), U"");
    QTest::keyClick(widget, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.Text(), U"abc") << "once, not once for the field and once for the menu";
    QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.Text(), U"");
}

TEST_F(MenuTest, OpenedByKeyTheMenuServesTheControlThatHadTheFocus)
{
    field.SetFocus();
    auto* bar = QApplication::activeWindow()->findChild<QMenuBar*>();
    bar->setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(Enabled("Edit", {"Undo", "Paste", "SelectAll"}), "Paste SelectAll");
}

TEST_F(MenuTest, ABlockedWindowDropsWhatAScreenReaderDoes)
{
    DesktopPopupMenu popup(window, {100, 150, 100, 20}, U"one\ntwo", 0);
    DesktopSegmentedButton segment(window, {200, 150, 100, 20}, U"Segment");
    button.SetName(U"button"), popup.SetName(U"popup"), segment.SetName(U"segment");
    std::string events;
    button.Pressed = [&] { events += "button "; };
    segment.Pressed = [&](int) { events += "segment "; };
    popup.SelectionChanged = [&] { events += "popup "; };
    TestMenus::Current().open.Action = [&] { events += "menu "; };

    const auto press = [](QAccessibleInterface* shown) {
        shown->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    auto &run = Find<QPushButton>("button"), &part = Find<QPushButton>("segment");
    const auto act = [&] {
        QAccessibleInterface* const edit = QAccessible::queryAccessibleInterface(&Find<QMenu>("Edit"));
        press(edit->child(edit->childCount() - 2)); // Select all.
        if (Find<QLineEdit>("field").hasSelectedText()) events += "select ";
        press(QAccessible::queryAccessibleInterface(&Find<QMenu>("File"))->child(0));
        Find<QComboBox>("popup").setCurrentIndex(1);
        for (QPushButton* pressed : {&run, &part}) {
            press(QAccessible::queryAccessibleInterface(pressed));
            EXPECT_TRUE(QTest::qWaitFor([&] { return !pressed->isDown(); }));
        }
    };
    const auto focusField = [&] {
        ShowActive(window);
        field.SetFocus();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QLineEdit>("field").hasFocus(); }));
    };
    const auto during = [&](const std::function<void()>& block) {
        focusField();
        QTimer::singleShot(0, qApp, [&] {
            act();
            if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
        });
        block();
    };
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"a dialog that hangs on the window", [&] { static_cast<void>(MessageDialog{}.ShowModal(&window)); }},
        {"a dialog that hangs on nothing", [] { MessageBox(U"Note"); }},
        {"a cover", [&] { window.BlockKeyboard(true), QApplication::processEvents(), window.BlockKeyboard(false); }},
        {"a long walk", [] { DesktopApplication::YieldToPlatform(); }},
    };
    for (const auto& [name, block] : rows) {
        during(block);
        EXPECT_EQ(events, "") << name;
        EXPECT_EQ(popup.SelectedRowIndex(), 0) << name;
        EXPECT_FALSE(segment.Selected(0)) << name;
    }
    focusField();
    act();
    EXPECT_EQ(events, "select menu popup button segment ") << "free again, it serves everybody";
}

} // namespace
