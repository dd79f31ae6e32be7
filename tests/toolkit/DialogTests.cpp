#include "tests/toolkit/WidgetTest.h"
#include "toolkit/Dialogs.h"

#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>
#include <QTimer>

namespace {

using Button = MessageDialog::Button;
using User = std::function<void(QDialog&)>;

/// Lets the user see the next dialog as soon as it is up, and closes what is left open.
void WhenUp(const User& user)
{
    QTimer::singleShot(0, qApp, [user] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        user(*dialog);
        if (dialog) dialog->close();
    });
}

/// Presses a key where the focus is.
User Presses(Qt::Key key)
{
    return [key](QDialog& dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(dialog.focusWidget(), key);
    };
}

TEST(MessageDialog, AnswersByButtonOrKey)
{
    const String yes = U"Yes", no = U"No & never", more = U"More";
    const auto pressesReturnInText = [](QDialog& dialog) {
        dialog.findChild<QTextEdit*>()->setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    };
    const auto clicks = [](const char* caption) {
        return [caption](QDialog& dialog) {
            for (auto* const button : dialog.findChildren<QPushButton*>())
                if (button->text() == caption) return button->click();
        };
    };
    const std::tuple<const char*, User, String, String, Button> rows[] = {
        {"Enter is the action button", Presses(Qt::Key_Enter), no, more, Button::Action},
        {"Return is the action button, also from the text", pressesReturnInText, no, more, Button::Action},
        {"Esc is the cancel button", Presses(Qt::Key_Escape), no, more, Button::Cancel},
        {"Esc without a cancel button is no button", Presses(Qt::Key_Escape), {}, more, Button::None},
        {"closing is no button", [](QDialog& dialog) { dialog.close(); }, no, more, Button::None},
        {"a caption stands as it is", clicks("No && never"), no, {}, Button::Cancel},
        {"a third button", clicks("More"), {}, more, Button::Alternate},
    };
    for (const auto& [name, user, cancel, alternate, answer] : rows) {
        WhenUp(user);
        EXPECT_EQ((MessageDialog{0, U"Really?", {}, yes, cancel, alternate}.ShowModal()), answer) << name;
    }
}

TEST(MessageDialog, ShowsTextsAsTheyAre)
{
    const QString manyLines = QStringLiteral("SCENERY_PACK Custom Scenery/Alpes/\n").repeated(10'000);
    const QString longWord(400, 'x'), line(1'000'000, 'x');
    const struct {
        const char* name;
        QString message, explanation, shown;
        bool scrolls;
    } rows[] = {
        {"a text of one line", "The file could not be written here.", "", "The file could not be written here.", false},
        {"what looks like markup", "<b>a</b> &amp; <br>", "<h1>\t%1</h1>", "<b>a</b> &amp; <br>\n<h1>\t%1</h1>", false},
        {"a path without a blank", longWord, longWord, longWord + "\n" + longWord, false},
        {"a report of ten thousand lines", "Not found", manyLines, "Not found\n" + manyLines, true},
        {"a message of ten thousand lines", manyLines, "", manyLines, true},
        {"a line of a million characters", line, "", line, true},
        {"of a longer text whole lines", "a\n" + line, line + "\nb", "a\n…\n" + line + "\n…", true},
    };
    const int mostHeight = QGuiApplication::primaryScreen()->availableGeometry().height() * 6 / 10;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        WhenUp([&](QDialog& dialog) {
            const auto& text = *dialog.findChild<QTextEdit*>();
            EXPECT_EQ(text.toPlainText(), row.shown);
            EXPECT_TRUE(dialog.width() >= 420 && dialog.width() <= 760 && dialog.height() <= mostHeight);
            EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << "a line is cut off";
            EXPECT_EQ(text.verticalScrollBar()->maximum() > 0, row.scrolls);
            EXPECT_TRUE(row.scrolls || text.height() < text.document()->size().height() + 2) << "room for no text";
        });
        const MessageDialog dialog{2, FromQt(row.message), FromQt(row.explanation), U"Yes", {}, {}};
        EXPECT_EQ(dialog.ShowModal(), Button::None);
    }
}

TEST(MessageDialog, TheKeyThatClosedItTypesNothing)
{
    DesktopWindow window({.title = U"Below", .width = 300, .height = 200});
    DesktopTextField field(window, {0, 0, 200, 22});
    window.Show();
    field.SetFocus();
    WhenUp(Presses(Qt::Key_Return));
    EXPECT_EQ((MessageDialog{-1, U"Really?", {}, U"Yes", {}, {}}.ShowModal(&window)), Button::Action);
    QWidget* const line = &WidgetOf(field);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    do {
        QApplication::sendEvent(line, &held);
        QTest::keyClick(line, Qt::Key_Space);
    } while (field.Text().empty());
    EXPECT_EQ(field.Text(), U" ") << "held, it types nothing, but pressed anew";
    QApplication::sendEvent(line, &held);
    EXPECT_EQ(field.Text(), U"  ") << "held to type blanks";
}

TEST(MessageDialog, HangsOnItsWindow)
{
    auto window = std::make_unique<DesktopWindow>(WindowStyle{.title = U"Below", .width = 300, .height = 200});
    const MessageDialog dialog{-1, U"Really?", {}, U"Yes", {}, {}};
    WhenUp([](QDialog& shown) { EXPECT_EQ(shown.windowModality(), Qt::ApplicationModal) << "not seen yet"; });
    EXPECT_EQ(dialog.ShowModal(window.get()), Button::None);
    window->Show();
    WhenUp([&](QDialog&) { window.reset(); });
    EXPECT_EQ(dialog.ShowModal(window.get()), Button::None) << "the window is gone";
}

} // namespace
