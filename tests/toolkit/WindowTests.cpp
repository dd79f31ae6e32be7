#include "tests/toolkit/WidgetTest.h"
#include "toolkit/Probe.h"

#include <QStatusBar>
#include <QTimer>

namespace {

TEST(Window, KeepsTheSizesOfItsContent)
{
    WindowStyle style{.title = U"W", .width = 760, .height = 500, .minimumWidth = 720, .minimumHeight = 400};
    style.maximumWidth = 800, style.hasMenuBar = style.hasStatusBar = true;
    DesktopWindow window(style);
    DesktopTextField field(window, {158, 13, 460, 22, Lock::Left | Lock::Top | Lock::Right});
    const DesktopButton button(window, {620, 13, 80, 22, Lock::Left | Lock::Top}, U"Ok");
    const QWidget& content = *WidgetOf(field).parentWidget();
    window.SetLeft(40);
    window.SetTop(60);
    window.Show();
    QApplication::processEvents();
    EXPECT_EQ(QRect(content.mapToGlobal(QPoint()), content.size()), QRect(40, 60, 760, 500));
    EXPECT_GT(content.y(), 0) << "the menu bar lies above";
    for (const auto& [width, height, expected] : {std::tuple(100, 5000, QSize(720, 5000)), {900, 1, QSize(800, 400)}}) {
        window.SetWidth(width);
        window.SetHeight(height);
        QApplication::processEvents();
        EXPECT_EQ(content.size(), expected);
        EXPECT_EQ(QSize(window.Width(), window.Height()), expected);
        EXPECT_EQ(WidgetOf(field).width(), expected.width() - 300);
        EXPECT_EQ(std::pair(button.Left(), button.Width()), std::pair(620, 80));
    }
    EXPECT_EQ(content.window()->maximumWidth(), 800) << "for the user too";
}

TEST(Window, ASentenceStandsBelowTheContent)
{
    const WindowStyle style{.title = U"W", .width = 400, .height = 100, .hasStatusBar = true};
    DesktopWindow window(style), behind(style);
    behind.Show();
    ShowActive(window);
    window.SetStatus(U"12 lines");
    auto* const bar = QApplication::activeWindow()->findChild<QStatusBar*>();
    const auto labels = bar->findChildren<QLabel*>();
    const struct {
        const char* name;
        QString sentence;
        bool hidesStatus, isShortened;
    } rows[] = {
        {"beside the status", "Saved", false, false},
        {"in its place", QString(45, 'n'), true, false},
        {"too long for the bar", QString(200, 'n'), true, true},
        {"none", "", false, false},
    };
    for (const auto& row : rows) {
        DesktopWindow::Say(FromQt(row.sentence));
        EXPECT_EQ(labels[0]->accessibleName(), row.sentence) << row.name;
        EXPECT_EQ(labels[0]->text() != row.sentence, row.isShortened) << row.name;
        EXPECT_EQ(labels[0]->toolTip(), row.isShortened ? row.sentence : "") << row.name;
        EXPECT_NE(labels[1]->isVisible(), row.hidesStatus) << row.name;
    }
}

TEST(Window, OpensBeforeItIsSeenAndOnceAndClosesUnlessItObjects)
{
    DesktopWindow window({.title = U"W", .width = 400, .height = 300});
    std::string events;
    bool objects = true;
    window.Opening = [&] { events += window.Visible() ? "late " : "opening "; };
    window.Activated = [&] { events += "activated "; };
    window.CancelClosing = [&](bool appQuitting) { return events += appQuitting ? "quit " : "close ", objects; };
    ShowActive(window);
    window.Show();
    EXPECT_EQ(events, "opening activated ");
    for (const bool objected : {true, false}) {
        objects = objected;
        QApplication::activeWindow()->close();
        EXPECT_EQ(window.Visible(), objected);
    }
    EXPECT_EQ(events, "opening activated close close ") << "each close asks once";

    window.Opening = [&] { window.Close(); };
    window.Show();
    EXPECT_FALSE(window.Visible()) << "closed while it opens, it is never seen";
}

TEST(Application, AnExceptionOfAHandlerIsToldAndTheLoopGoesOn)
{
    const Probe probe;
    const auto raise = [](const auto& exception) { QTimer::singleShot(0, qApp, [exception] { throw exception; }); };
    raise(std::bad_alloc());
    raise(std::runtime_error("no \xE2\x98\x9E"));
    raise(7);
    bool reached = false;
    QTimer::singleShot(0, qApp, [&] { reached = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return reached; }));
    const String start = U"Error ! Please contact the authors.\n";
    EXPECT_EQ(probe.Asked,
              (std::vector{start + U"std::bad_alloc", start + U"no \u261E", start + U"Unknown exception"}));
}

} // namespace
