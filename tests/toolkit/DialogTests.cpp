#include "tests/TemporaryFolder.h"
#include "toolkit/DesktopWindow.h"
#include "toolkit/Dialogs.h"
#include "toolkit/Probe.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using Button = MessageDialog::Button;

/// Lets `look` see the next dialog as soon as it is up, and closes what it leaves open.
void WhenUp(std::function<void(QDialog&)> look)
{
    QTimer::singleShot(0, [look = std::move(look)] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        look(*dialog);
        if (dialog) dialog->close();
    });
}

QPushButton& ButtonNamed(QDialog& dialog, const QString& caption)
{
    for (auto* const button : dialog.findChildren<QPushButton*>())
        if (button->text() == caption) return *button;
    throw std::runtime_error("no such button");
}

void Press(QDialog& dialog, Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); }
void Click(QDialog& dialog, const QString& caption)
{
    QTest::mouseClick(&ButtonNamed(dialog, caption), Qt::LeftButton);
}

TEST(MessageDialog, AnswersByButtonOrKey)
{
    const String yes = U"Yes", no = U"No & never", more = U"More";
    const struct {
        const char* name;
        std::function<void(QDialog&)> user;
        String cancel, alternate;
        Button answer;
    } rows[] = {
        {"Enter is the action button", [](auto& dialog) { Press(dialog, Qt::Key_Enter); }, no, more, Button::Action},
        {"Return is the action button, also when the text has the focus",
         [](auto& dialog) {
             dialog.template findChild<QTextEdit*>()->setFocus();
             Press(dialog, Qt::Key_Return);
         },
         no, more, Button::Action},
        {"Esc is the cancel button", [](auto& dialog) { Press(dialog, Qt::Key_Escape); }, no, more, Button::Cancel},
        {"Esc without a cancel button is no button",
         [](auto& dialog) { Press(dialog, Qt::Key_Escape); },
         {},
         more,
         Button::None},
        {"closing is no button", [](auto& dialog) { dialog.close(); }, no, more, Button::None},
        {"a click on the action button", [](auto& dialog) { Click(dialog, "Yes"); }, no, more, Button::Action},
        {"a caption stands as it is", [](auto& dialog) { Click(dialog, "No && never"); }, no, {}, Button::Cancel},
        {"a click on the alternate button", [](auto& dialog) { Click(dialog, "More"); }, {}, more, Button::Alternate},
        {"no caption, no button",
         [](auto& dialog) { EXPECT_EQ(dialog.template findChildren<QPushButton*>().size(), 1); },
         {},
         {},
         Button::None},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        WhenUp(row.user);
        EXPECT_EQ((MessageDialog{0, U"Really?", {}, yes, row.cancel, row.alternate}.ShowModal()), row.answer);
    }
}

TEST(MessageDialog, ShowsAnyTextInFull)
{
    QString manyLines;
    for (int line = 1; line <= 10'000; ++line)
        manyLines += QStringLiteral("%1: SCENERY_PACK Custom Scenery/Alpes/\n").arg(line);
    const struct {
        const char* name;
        QString message, explanation;
        bool scrolls;
    } rows[] = {
        {"a short text", "Really?", "", false},
        {"a blank", " ", "", false},
        {"what looks like markup", "<b>bold</b> &amp; <br>", "<h1>\t%1</h1>", false},
        {"a path without a blank", "Custom/" + QString(400, 'x'), QString(400, 'y'), false},
        {"a report of ten thousand lines", "Not found", manyLines, true},
        {"a message of ten thousand lines", manyLines, "", true},
    };
    const int screenHeight = QGuiApplication::primaryScreen()->availableGeometry().height();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        WhenUp([&](QDialog& dialog) {
            const auto& text = *dialog.findChild<QTextEdit*>();
            EXPECT_EQ(text.toPlainText(),
                      row.explanation.isEmpty() ? row.message : row.message + "\n" + row.explanation);
            EXPECT_LE(dialog.height(), screenHeight * 6 / 10);
            EXPECT_GE(dialog.width(), 420);
            EXPECT_LE(dialog.width(), 760);
            EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << "a line is cut off";
            EXPECT_EQ(text.verticalScrollBar()->maximum() > 0, row.scrolls);
            EXPECT_EQ(text.verticalScrollBar()->isVisible(), row.scrolls);
            auto& button = ButtonNamed(dialog, "A rather long caption of the action button");
            EXPECT_GE(button.width(), button.sizeHint().width());
            EXPECT_TRUE(dialog.rect().contains(QRect(button.mapTo(&dialog, QPoint()), button.size())));
        });
        static_cast<void>(MessageDialog{
            2,
            row.message.toStdU32String(),
            row.explanation.toStdU32String(),
            U"A rather long caption of the action button",
            {},
            {}}.ShowModal());
    }
}

TEST(MessageDialog, HangsOnItsWindow)
{
    auto window = std::make_unique<DesktopWindow>(WindowStyle{.title = U"Below", .width = 300, .height = 200});
    const MessageDialog dialog{-1, U"Really?", {}, U"Yes", {}, {}};
    WhenUp([](QDialog& shown) {
        EXPECT_EQ(shown.parentWidget(), nullptr) << "a window that isn't seen can't carry it";
        EXPECT_EQ(shown.windowModality(), Qt::ApplicationModal);
    });
    EXPECT_EQ(dialog.ShowModal(window.get()), Button::None);
    window->Show();
    WhenUp([](QDialog& shown) {
        ASSERT_NE(shown.parentWidget(), nullptr);
        EXPECT_EQ(shown.parentWidget()->windowTitle(), "Below");
        EXPECT_EQ(shown.windowModality(), Qt::WindowModal);
        EXPECT_EQ(shown.windowTitle(), "");
    });
    EXPECT_EQ(dialog.ShowModal(window.get()), Button::None);
    WhenUp([&](QDialog&) { window.reset(); });
    EXPECT_EQ(dialog.ShowModal(window.get()), Button::None) << "the window is gone";
}

TEST(Chooser, GivesWhatTheUserHasNamed)
{
    const TemporaryFolder folder;
    folder.File("packs.ini", "1");
    folder.File("picture.png");
    folder.Folder("Alpes");
    std::filesystem::create_symlink("packs.ini", folder.Path() / "alias");
    std::filesystem::create_symlink("Alpes", folder.Path() / "alias to Alpes");
    std::filesystem::create_symlink("gone", folder.Path() / "dead alias");
    enum class Kind { File, Folder };
    const struct {
        const char* name;
        Kind kind;
        const char* typed;
        bool isChosen;
    } rows[] = {
        {"a file", Kind::File, "packs.ini", true},
        {"a file that the filter doesn't offer", Kind::File, "picture.png", true},
        {"an alias is chosen as itself", Kind::File, "alias", true},
        {"a file that is not there", Kind::File, "nothing", false},
        {"a dead alias", Kind::File, "dead alias", false},
        {"a folder", Kind::Folder, "Alpes", true},
        {"an alias to a folder is chosen as itself", Kind::Folder, "alias to Alpes", true},
        {"a file is no folder", Kind::Folder, "packs.ini", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto type = [&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Choose:");
            // What Qt says of a wrong name comes in a box of its own.
            if (!row.isChosen) QTimer::singleShot(0, &dialog, [] { QApplication::activeModalWidget()->close(); });
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(row.typed);
            QMetaObject::invokeMethod(&dialog, "accept");
        };
        WhenUp(type);
        const FolderItem start(folder.Path());
        const auto chosen = row.kind == Kind::File ? OpenFileDialog{U"Choose:", start, U".txt;.ini"}.ShowModal()
                                                   : SelectFolderDialog{U"Choose:", start}.ShowModal();
        ASSERT_EQ(chosen.has_value(), row.isChosen);
        EXPECT_TRUE(!chosen || chosen->Path() == folder.Path() / row.typed);
    }
}

TEST(Chooser, OffersFilesByTheirExtensionsFirst)
{
    for (const auto& [filter, offered] : {std::pair{U".txt;.ini"s, QStringList{"*.txt *.ini", "*"}},
                                          std::pair{U""s, QStringList{"*"}}, std::pair{U";"s, QStringList{"*"}}}) {
        WhenUp([&](QDialog& dialog) { EXPECT_EQ(qobject_cast<QFileDialog*>(&dialog)->nameFilters(), offered); });
        EXPECT_FALSE((OpenFileDialog{U"", {}, filter}.ShowModal()));
    }
}

TEST(Probe, AnswersDialogsAndRecordsThem)
{
    Probe probe;
    const FolderItem file("/packs.ini");
    probe.Answers = {2, 3, 0, file, std::nullopt};
    int asking = 0;
    probe.WhileAsking = [&] { asking += static_cast<int>(probe.Asked.size()); };
    const MessageDialog full{0, U"Really?", U"It is gone then.", U"Yes", U"No", U"Later"};
    EXPECT_EQ(full.ShowModal(), Button::Cancel);
    EXPECT_EQ((MessageDialog{0, U"Note", {}, U"OK", {}, U"More"}.ShowModal()), Button::Alternate);
    EXPECT_EQ(full.ShowModal(), Button::None);
    EXPECT_EQ((OpenFileDialog{U"A file:", {}, {}}.ShowModal()->Path()), file.Path());
    EXPECT_FALSE((SelectFolderDialog{U"A folder:", {}}.ShowModal()));
    MessageBox(U"Error !");
    EXPECT_EQ(full.ShowModal(), Button::Action);
    EXPECT_FALSE((OpenFileDialog{U"Another:", {}, {}}.ShowModal()));
    const String asked = U"Really?\nIt is gone then.[Yes][No][Later]";
    EXPECT_EQ(probe.Asked, (std::vector<String>{asked, U"Note[OK][More]", asked, U"A file:", U"A folder:", U"Error !",
                                                asked, U"Another:"}));
    EXPECT_EQ(asking, 36);
}

} // namespace
