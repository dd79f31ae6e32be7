#include "tests/TemporaryFolder.h"
#include "toolkit/Desktop.h"
#include "toolkit/Probe.h"
#include "toolkit/Sound.h"
#include "toolkit/Timer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QProcess>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

/// What the desktop would have been asked to open.
class OpenedLinks : public QObject {
    Q_OBJECT
public:
    OpenedLinks()
    {
        for (const char* const scheme : {"http", "mailto", "file"})
            QDesktopServices::setUrlHandler(scheme, this, "Note");
    }
    ~OpenedLinks() override
    {
        for (const char* const scheme : {"http", "mailto", "file"})
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_INVOKABLE void Note(const QUrl& url) { urls << url.toString(QUrl::FullyEncoded); }
    QStringList urls;
};

TEST(Desktop, OpensLinksAndItems)
{
    OpenedLinks opened;
    for (const StringView text : {U"http://example.invalid/a b?c=d&e#f", U"mailto:somebody@example.invalid", U"", U" ",
                                  U"no link", U"--help", U"http://[::1", U"packs.ini"})
        System::GotoURL(text);
    OpenItem(FolderItem("/tmp/100% Alpes"));
    EXPECT_EQ(opened.urls, (QStringList{"http://example.invalid/a%20b?c=d&e#f", "mailto:somebody@example.invalid",
                                        "file:///tmp/100%25%20Alpes"}));
}

/// A file manager on a session bus.
class FileManager : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        asked << message.member() << message.arguments().value(0).toStringList();
        return connection.send(message.createReply());
    }
    QStringList asked;
};

TEST(Desktop, RevealsAnItemOrElseOpensItsFolder)
{
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!bus.waitForReadyRead()) GTEST_SKIP() << "no dbus-daemon to be had";
    const QString address = QString::fromLatin1(bus.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLatin1());
    OpenedLinks opened;
    const FolderItem item("/tmp/Custom Scenery/Alpes");
    const auto failed = [] { FAIL() << "the folder was opened"; };
    RevealItem(item, failed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.urls.isEmpty(); }));
    EXPECT_EQ(opened.urls, QStringList("file:///tmp/Custom%20Scenery/"));

    FileManager manager;
    auto connection = QDBusConnection::connectToBus(address, "file manager");
    ASSERT_TRUE(connection.registerVirtualObject("/org/freedesktop/FileManager1", &manager));
    ASSERT_TRUE(connection.registerService("org.freedesktop.FileManager1"));
    RevealItem(item, failed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !manager.asked.isEmpty(); }));
    EXPECT_EQ(manager.asked, (QStringList{"ShowItems", "file:///tmp/Custom%20Scenery/Alpes"}));
    EXPECT_EQ(opened.urls.size(), 1);
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
    const auto shotsLater = [&] {
        isLater = false;
        later.SetRunMode(Single);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
        return shots;
    };
    timer.SetRunMode(Single);
    EXPECT_EQ(shots, 0);
    EXPECT_EQ(shotsLater(), 1);
    timer.SetRunMode(Single);
    timer.SetRunMode(Off);
    EXPECT_EQ(shotsLater(), 1);
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
