#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopControls.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/Probe.h"
#include "toolkit/Timer.h"
#include "toolkit/core/QtText.h"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr unsigned L = Lock::Left, T = Lock::Top, R = Lock::Right, B = Lock::Bottom;

TEST(Placement, ControlsFollowTheirLocks)
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
        control.SetName(U"control");
        window.SetWidth(500);
        window.SetHeight(250);
        const auto place = [&] { return QRect(control.Left(), control.Top(), control.Width(), control.Height()); };
        EXPECT_EQ(place(), expected) << name;
        EXPECT_GE(Find<QWidget>("control").height(), 0) << name;
        window.Show();
        QApplication::processEvents();
        EXPECT_EQ(place(), expected) << name << ", shown";
        window.SetWidth(400);
        window.SetHeight(300);
        QApplication::processEvents();
        EXPECT_EQ(place(), QRect(10, 20, 30, 40)) << name << ", there and back";
    }
}

TEST(Placement, WindowsKeepTheSizesOfTheirContent)
{
    WindowStyle style{.title = U"W", .width = 760, .height = 500, .minimumWidth = 720, .minimumHeight = 400};
    style.maximumWidth = 800, style.hasMenuBar = style.hasStatusBar = true;
    DesktopWindow window(style);
    DesktopTextField field(window, {158, 13, 460, 22, L | T | R});
    field.SetName(U"field");
    const QWidget& content = *Find<QWidget>("field").parentWidget();
    window.SetLeft(40);
    window.SetTop(60);
    window.Show();
    QApplication::processEvents();
    EXPECT_EQ(content.size(), QSize(760, 500));
    EXPECT_GT(content.y(), 0) << "the menu bar lies above";
    EXPECT_EQ(content.mapToGlobal(QPoint(0, 0)), QPoint(40, 60));
    EXPECT_EQ(content.window()->height(), content.geometry().bottom() + 1 + window.StatusHeight());
    EXPECT_GT(window.StatusHeight(), 0);
    window.SetWidth(100);
    window.SetHeight(5000);
    QApplication::processEvents();
    EXPECT_EQ(content.size(), QSize(720, 5000));
    EXPECT_EQ(field.Width(), 420);
    EXPECT_EQ(Find<QWidget>("field").width(), 420);
    window.SetWidth(900);
    QApplication::processEvents();
    EXPECT_EQ(content.width(), 800);
    EXPECT_EQ(window.Width(), 800);
    window.SetTop(100);
    EXPECT_EQ(window.Left(), 40);
    EXPECT_EQ(content.mapToGlobal(QPoint(0, 0)).y(), 100);
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
    struct Row {
        const char* name;
        QString sentence;
        bool hidesStatus, isShortened;
    };
    for (const Row& row :
         {Row{"beside the status", "Saved", false, false}, Row{"in its place", QString(45, 'n'), true, false},
          Row{"too long for the bar", QString(200, 'n'), true, true}, Row{"none", "", false, false}}) {
        DesktopWindow::Say(FromQt(row.sentence));
        EXPECT_EQ(labels[0]->accessibleName(), row.sentence) << row.name;
        EXPECT_EQ(labels[0]->text() != row.sentence, row.isShortened) << row.name;
        EXPECT_EQ(labels[0]->toolTip(), row.isShortened ? row.sentence : "") << row.name;
        EXPECT_NE(labels[1]->isVisible(), row.hidesStatus) << row.name;
        EXPECT_EQ(window.Focus(), &field);
    }
    plain.Show();
    DesktopWindow::Say(U"said over a window without a bar");
    const QWidgetList windows = QApplication::topLevelWidgets();
    EXPECT_EQ(std::ranges::count_if(windows,
                                    [](const QWidget* shown) {
                                        const auto* const other = shown->findChild<QStatusBar*>();
                                        return other && !other->findChild<QLabel*>()->text().isEmpty();
                                    }),
              1);
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
    group.SetFocus();
    EXPECT_EQ(window.Focus(), &group);
    never.SetFocus();
    EXPECT_EQ(window.Focus(), &never);
}

TEST(Window, OpensBeforeItIsSeenAndOnce)
{
    DesktopWindow window({.title = U"W", .width = 400, .height = 300});
    std::string events;
    window.Opening = [&] { events += window.Visible() ? "late " : "opening "; };
    window.Activated = [&] { events += "activated "; };
    ShowActive(window);
    EXPECT_TRUE(window.Visible());
    window.Show();
    EXPECT_EQ(events, "opening activated ");

    DesktopWindow refused({.title = U"R", .width = 400, .height = 300});
    refused.Opening = [&] { refused.Close(); };
    refused.Show();
    EXPECT_FALSE(refused.Visible()) << "closed while it opens, it is never seen";
}

TEST(Window, AUserClosesItUnlessItObjects)
{
    DesktopWindow window({.title = U"W", .width = 400, .height = 300});
    DesktopLabel label(window, {0, 0, 10, 10}, U"x");
    label.SetName(U"label");
    bool objects = true;
    std::vector<bool> asked;
    window.CancelClosing = [&](bool appQuitting) { return asked.push_back(appQuitting), objects; };
    window.Show();
    Find<QWidget>("label").window()->close();
    EXPECT_TRUE(window.Visible());
    objects = false;
    Find<QWidget>("label").window()->close();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(asked, (std::vector{false, false})) << "each close asks once";
}

TEST(Application, QuitEndsTheLoopUnlessAWindowObjects)
{
    DesktopWindow first({.title = U"1", .width = 40, .height = 30}), second({.title = U"2", .width = 40, .height = 30});
    DesktopWindow hidden({.title = U"3", .width = 40, .height = 30});
    std::string asked;
    bool objects = true;
    first.CancelClosing = [&](bool appQuitting) { return asked += appQuitting ? "1" : "x", false; };
    second.CancelClosing = [&](bool appQuitting) { return asked += appQuitting ? "2" : "x", objects; };
    hidden.CancelClosing = [&](bool) { return asked += "3", true; };
    first.Show();
    second.Show();
    Timer timer(0);
    timer.Action = [&] {
        TestApplication().Quit(3);
        objects = false;
        TestApplication().Quit(4);
    };
    timer.SetRunMode(Timer::RunModes::Single);
    EXPECT_EQ(TestApplication().Run(), 4);
    EXPECT_EQ(asked, "1212");
    EXPECT_EQ(TestApplication().Run(), 4) << "what has ended doesn't begin again";
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
