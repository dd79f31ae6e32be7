#include "toolkit/Desktop.h"
#include "toolkit/Probe.h"
#include "toolkit/Sound.h"
#include "toolkit/Timer.h"

#include <QDesktopServices>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

/// What the desktop is asked to open.
class Opened : public QObject {
    Q_OBJECT
public:
    Q_INVOKABLE void Note(const QUrl& url) { urls << url.toString(QUrl::FullyEncoded); }
    QStringList urls;
};

TEST(Desktop, OpensLinksAndItems)
{
    static auto& opened = *new Opened; // Qt keeps it as long as the program runs
    for (const char* const scheme : {"http", "mailto", "file"})
        QDesktopServices::setUrlHandler(scheme, &opened, "Note");
    for (const StringView text : {U"http://example.invalid/a b?c=d&e#f", U"mailto:somebody@example.invalid", U"", U" ",
                                  U"no link", U"--help", U"http://[::1", U"packs.ini"})
        EXPECT_EQ(System::GotoURL(text), text.starts_with(U"http://e") || text.starts_with(U"mailto:"));
    OpenItem(FolderItem("/tmp/100% Alpes"));
    EXPECT_EQ(opened.urls, (QStringList{"http://example.invalid/a%20b?c=d&e#f", "mailto:somebody@example.invalid",
                                        "file:///tmp/100%25%20Alpes"}));
}

TEST(Timer, FiresOnceUnlessItIsOff)
{
    Timer timer(1), later(20);
    int shots = 0, ends = 0;
    timer.Action = [&] { ++shots; };
    later.Action = [&] { ++ends; };
    for (const auto mode : {Timer::RunModes::Single, Timer::RunModes::Off}) {
        timer.SetRunMode(Timer::RunModes::Single);
        timer.SetRunMode(mode);
        later.SetRunMode(Timer::RunModes::Single);
        EXPECT_TRUE(QTest::qWaitFor([&, before = ends] { return ends > before; }));
        EXPECT_EQ(shots, 1);
    }
}

} // namespace

#include "DesktopTests.moc"
