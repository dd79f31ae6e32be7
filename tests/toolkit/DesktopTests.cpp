#include "tests/TemporaryFolder.h"
#include "toolkit/Desktop.h"
#include "toolkit/Probe.h"
#include "toolkit/Sound.h"
#include "toolkit/Timer.h"

#include <QDBusConnection>
#include <QDesktopServices>
#include <QProcess>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

/// What the desktop and its file manager are asked.
class Asked : public QObject, public QStringList {
    Q_OBJECT
public:
    Asked()
    {
        ForSchemes([this](const char* scheme) { QDesktopServices::setUrlHandler(scheme, this, "Open"); });
    }
    ~Asked() override
    {
        ForSchemes([](const char* scheme) { QDesktopServices::unsetUrlHandler(scheme); });
    }
    Q_INVOKABLE void Open(const QUrl& url) { *this << url.toString(QUrl::FullyEncoded); }
public Q_SLOTS:
    void ShowItems(const QStringList& items, const QString&) { *this << items << "shown"; }

private:
    static void ForSchemes(const auto& act)
    {
        for (const char* const scheme : {"http", "mailto", "file"})
            act(scheme);
    }
};

TEST(Desktop, OpensLinksAndItems)
{
    const Asked asked;
    for (const StringView text : {U"http://example.invalid/a b?c=d&e#f", U"mailto:somebody@example.invalid", U"", U" ",
                                  U"no link", U"--help", U"http://[::1", U"packs.ini"})
        System::GotoURL(text);
    OpenItem(FolderItem("/tmp/100% Alpes"));
    EXPECT_EQ(asked, (QStringList{"http://example.invalid/a%20b?c=d&e#f", "mailto:somebody@example.invalid",
                                  "file:///tmp/100%25%20Alpes"}));
}

TEST(Desktop, RevealsAnItemOrElseOpensItsFolder)
{
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!bus.waitForReadyRead()) GTEST_SKIP() << "no dbus-daemon to be had";
    const QString address = QString::fromLatin1(bus.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLatin1());
    Asked asked;
    const FolderItem item("/tmp/Custom Scenery/Alpes");
    RevealItem(item, [] { FAIL() << "no folder was opened"; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !asked.isEmpty(); }));
    EXPECT_EQ(asked, QStringList("file:///tmp/Custom%20Scenery/"));

    asked.clear();
    auto manager = QDBusConnection::connectToBus(address, "file manager");
    const QString name = "org.freedesktop.FileManager1";
    ASSERT_TRUE(manager.registerObject("/org/freedesktop/FileManager1", name, &asked, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(manager.registerService(name));
    RevealItem(item, [] {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !asked.isEmpty(); }));
    EXPECT_EQ(asked, (QStringList{"file:///tmp/Custom%20Scenery/Alpes", "shown"}));
    QDBusConnection::disconnectFromBus("file manager");
    bus.kill();
    bus.waitForFinished();
}

TEST(Timer, FiresOnceUnlessItIsOff)
{
    using enum Timer::RunModes;
    Timer timer(1), later(20);
    int shots = 0;
    bool isLater = false;
    timer.Action = [&] { ++shots; };
    later.Action = [&] { isLater = true; };
    timer.SetRunMode(Single);
    EXPECT_EQ(shots, 0);
    for (const auto mode : {Single, Off}) {
        timer.SetRunMode(mode);
        isLater = false;
        later.SetRunMode(Single);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
        EXPECT_EQ(shots, 1);
        timer.SetRunMode(Single);
    }
}

TEST(Sound, IsSilentWithoutASoundDevice)
{
    EXPECT_EQ(Sound::OpenAsSound(*ResourceFolder()), nullptr);
    const auto sound = Sound::OpenAsSound(*ResourceFolder()->Child(U"Bip.wav"));
    ASSERT_TRUE(sound);
    sound->SetVolume(30);
    const auto clone = sound->Clone();
    EXPECT_EQ(clone->Volume(), 30);
    testing::internal::CaptureStderr();
    sound->Play();
    clone->Play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !sound->IsPlaying() && !clone->IsPlaying(); }, 60'000));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    Probe probe;
    sound->Play();
    EXPECT_EQ(probe.Sounds, std::vector{U"Bip.wav"s});
}

} // namespace

#include "DesktopTests.moc"
