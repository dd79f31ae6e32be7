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

    void SetUp() override { ShowActive(window); }

    static QAction& Item(const char* name)
    {
        return *QApplication::activeWindow()->findChild<QAction*>(QLatin1String(name));
    }
    /// Which items of the menu "Edit" are enabled while it is open.
    static std::string EnabledInEdit()
    {
        auto& menu = Find<QMenu>("Edit");
        menu.popup({0, 0});
        std::string enabled;
        for (const char* item : {"Undo", "Cut", "Copy", "Paste", "Clear", "SelectAll"})
            if (Item(item).isEnabled()) enabled.append(item).append(" ");
        menu.close();
        return enabled;
    }
};

TEST_F(MenuTest, ShortcutsAreThoseOfTheTextAndEachItemHasAKey)
{
    QString keys;
    for (const char* item : {"Open", "Archive", "Quit", "Preferences", "Clear"})
        keys += Item(item).text() + " " + Item(item).shortcut().toString(QKeySequence::PortableText) +
                (Item(item).autoRepeat() ? " repeats " : " ");
    EXPECT_EQ(keys, "&Ouvrir… Ctrl+Shift+O &Archive… Ctrl+Alt+O &Quit Ctrl+Q &Préférences… Ctrl+, &Effacer  repeats ");
}

TEST_F(MenuTest, AHeldKeyRepeatsEditsAlone)
{
    QApplication::clipboard()->setText(QStringLiteral("x"));
    field.SetFocus();
    std::string opened;
    const auto send = [&](QEvent::Type type, quint64 milliseconds) {
        QKeyEvent event(type, Qt::Key_F5, Qt::NoModifier);
        event.setTimestamp(milliseconds);
        QApplication::sendEvent(&WidgetOf(field), &event);
    };
    for (const auto& [name, milliseconds] : {std::pair("again ", 8U), {"held ", 7U}}) {
        testMenus.open.Action = [&opened, name = name] { opened += name; };
        send(QEvent::KeyRelease, 7);
        send(QEvent::ShortcutOverride, milliseconds);
        for (const char* item : {"Open", "Paste"}) {
            QShortcutEvent shortcut(Qt::Key_F5, 0);
            QApplication::sendEvent(&Item(item), &shortcut);
        }
    }
    EXPECT_EQ(opened, "again ");
    EXPECT_EQ(field.Text(), U"xxabc");
    Item("Open").trigger();
    EXPECT_EQ(opened, "again held ") << "chosen by the mouse while the key is held";
}

TEST_F(MenuTest, EditItemsServeTheControlWithTheFocus)
{
    QApplication::clipboard()->setText(QStringLiteral("clip"));
    button.SetFocus();
    EXPECT_EQ(EnabledInEdit(), "") << "no text has the focus";
    field.SetFocus();
    QApplication::activeWindow()->findChild<QMenuBar*>()->setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(EnabledInEdit(), "Paste SelectAll ") << "opened by a key";
    field.SetFocus();
    const std::tuple<const char*, StringView, const char*> steps[] = {
        {"SelectAll", U"abc", "Cut Copy Paste Clear SelectAll "},
        {"Clear", U"", "Undo Paste "},
        {"Undo", U"abc", "Cut Copy Paste Clear SelectAll "},
    };
    for (const auto& [item, text, after] : steps) {
        Item(item).trigger();
        EXPECT_EQ(field.Text(), text) << item;
        EXPECT_EQ(EnabledInEdit(), after) << item;
    }
    area.SetText(U"x\u2028\ny");
    area.SetFocus();
    for (const char* item : {"SelectAll", "Cut", "Paste", "Paste"})
        Item(item).trigger();
    EXPECT_EQ(area.Text(), U"x\u2028\nyx\u2028\ny");
    QApplication::clipboard()->clear();
    EXPECT_EQ(EnabledInEdit(), "Undo SelectAll ");
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
