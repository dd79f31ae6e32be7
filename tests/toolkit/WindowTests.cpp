#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/Probe.h"

#include <QStatusBar>
#include <QTimer>

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;

TEST(Window, ControlsFollowTheirLocks)
{
    const std::tuple<const char*, unsigned, QRect> rows[] = {
        {"left and top stay", L | T, {10, 20, 30, 40}},
        {"no lock stays", 0, {10, 20, 30, 40}},
        {"right and bottom move", R | B, {110, -30, 30, 40}},
        {"opposite edges stretch", L | R | T | B, {10, 20, 130, -10}},
        {"one edge each", T | R, {110, 20, 30, 40}},
    };
    for (const auto& [name, locks, expected] : rows) {
        DesktopWindow window({.title = U"W", .width = 400, .height = 300, .minimumWidth = 100, .minimumHeight = 100});
        DesktopLabel control(window, {10, 20, 30, 40, locks}, U"x");
        const auto place = [&] { return QRect(control.Left(), control.Top(), control.Width(), control.Height()); };
        window.SetWidth(500);
        window.SetHeight(250);
        EXPECT_EQ(place(), expected) << name;
        EXPECT_GE(WidgetOf(control).height(), 0) << name;
        window.Show();
        QApplication::processEvents();
        EXPECT_EQ(place(), expected) << name << ", shown";
        window.SetWidth(400);
        window.SetHeight(300);
        QApplication::processEvents();
        EXPECT_EQ(place(), QRect(10, 20, 30, 40)) << name << ", there and back";
    }
}

TEST(Window, KeepsTheSizesOfItsContent)
{
    WindowStyle style{.title = U"W", .width = 760, .height = 500, .minimumWidth = 720, .minimumHeight = 400};
    style.maximumWidth = 800, style.hasMenuBar = style.hasStatusBar = true;
    DesktopWindow window(style);
    DesktopTextField field(window, {158, 13, 460, 22, L | T | R});
    const QWidget& content = *WidgetOf(field).parentWidget();
    window.SetLeft(40);
    window.SetTop(60);
    window.Show();
    QApplication::processEvents();
    EXPECT_EQ(content.size(), QSize(760, 500));
    EXPECT_GT(content.y(), 0) << "the menu bar lies above";
    EXPECT_EQ(content.mapToGlobal(QPoint(0, 0)), QPoint(40, 60));
    EXPECT_EQ(content.window()->height(), content.geometry().bottom() + 1 + window.StatusHeight());
    EXPECT_GT(window.StatusHeight(), 0);
    for (const auto& [width, height, expected] : {std::tuple(100, 5000, QSize(720, 5000)), {900, 1, QSize(800, 400)}}) {
        window.SetWidth(width);
        window.SetHeight(height);
        QApplication::processEvents();
        EXPECT_EQ(content.size(), expected);
        EXPECT_EQ(QSize(window.Width(), window.Height()), expected);
        EXPECT_EQ(QSize(field.Width(), WidgetOf(field).width()), QSize(1, 1) * (expected.width() - 300));
    }
    EXPECT_EQ(content.window()->maximumWidth(), 800) << "for the user too";
    window.SetTop(100);
    EXPECT_EQ(content.mapToGlobal(QPoint(0, 0)), QPoint(40, 100));
}

TEST(Window, ASentenceStandsBelowTheContentAndLeavesTheFocus)
{
    const WindowStyle style{.title = U"W", .width = 400, .height = 100, .hasStatusBar = true};
    DesktopWindow window(style), behind(style), plain({.title = U"plain", .width = 100, .height = 100});
    DesktopTextField field(window, {0, 0, 100, 22, L | T});
    behind.Show();
    ShowActive(window);
    field.SetFocus();
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
        EXPECT_EQ(window.Focus(), &field);
    }
    plain.Show();
    DesktopWindow::Say(U"said over a window without a bar");
    int bars = 0;
    for (const QWidget* shown : QApplication::allWidgets())
        if (shown->accessibleName().startsWith("said over")) ++bars;
    EXPECT_EQ(bars, 1);
}

TEST(Window, TabKeyGoesByIndexThenByCreation)
{
    DesktopWindow window({.title = U"W", .width = 400, .height = 300});
    DesktopRadioGroup group(window, {0, 0, 100, 40, L | T, 2}, U"one\ntwo\nthree");
    DesktopButton third(window, {0, 50, 100, 20, L | T, 1}, U"third");
    DesktopTextArea fourth(window, {0, 80, 100, 20, L | T, 1});
    DesktopButton never(window, {0, 110, 100, 20, L | T, -1}, U"never");
    DesktopLabel label(window, {0, 140, 100, 20, L | T, 0}, U"label");
    DesktopTextField second(window, {0, 170, 100, 20, L | T, 0});
    DesktopLabel link(window, {0, 200, 100, 20, L | T, 3}, U"link", {.link = true});
    ShowActive(window);
    window.SetFocus();
    EXPECT_EQ(window.Focus(), nullptr);
    for (const DesktopUIControl* expected :
         std::initializer_list<const DesktopUIControl*>{&second, &third, &fourth, &group, &link, &second}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.Focus(), expected) << expected->TabIndex();
    }
    for (DesktopUIControl* control : std::initializer_list<DesktopUIControl*>{&group, &never}) {
        control->SetFocus();
        EXPECT_EQ(window.Focus(), control);
    }
}

TEST(Window, OpensBeforeItIsSeenAndOnceAndClosesUnlessItObjects)
{
    DesktopWindow window({.title = U"W", .width = 400, .height = 300});
    DesktopLabel label(window, {0, 0, 10, 10}, U"x");
    std::string events;
    bool objects = true;
    window.Opening = [&] { events += window.Visible() ? "late " : "opening "; };
    window.Activated = [&] { events += "activated "; };
    window.CancelClosing = [&](bool appQuitting) { return events += appQuitting ? "quit " : "close ", objects; };
    ShowActive(window);
    window.Show();
    EXPECT_EQ(events, "opening activated ");
    WidgetOf(label).window()->close();
    EXPECT_TRUE(window.Visible());
    objects = false;
    WidgetOf(label).window()->close();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(events, "opening activated close close ") << "each close asks once";

    window.Opening = [&] { window.Close(); };
    window.Show();
    EXPECT_FALSE(window.Visible()) << "closed while it opens, it is never seen";
}

TEST(Application, QuitEndsTheLoopUnlessAWindowObjects)
{
    const WindowStyle style{.title = U"1", .width = 40, .height = 30};
    DesktopWindow first(style), second(style), hidden(style);
    std::string asked;
    bool objects = true;
    first.CancelClosing = [&](bool appQuitting) { return asked += appQuitting ? "1" : "x", false; };
    second.CancelClosing = [&](bool appQuitting) { return asked += appQuitting ? "2" : "x", objects; };
    hidden.CancelClosing = [&](bool) { return asked += "3", true; };
    first.Show();
    second.Show();
    QTimer::singleShot(0, qApp, [&] {
        testApplication->Quit(3);
        objects = false;
        testApplication->Quit(4);
    });
    EXPECT_EQ(testApplication->Run(), 4);
    EXPECT_EQ(asked, "1212");
    EXPECT_EQ(testApplication->Run(), 4) << "what has ended doesn't begin again";
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
