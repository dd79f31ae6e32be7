#include "toolkit/Desktop.h"
#include "toolkit/Probe.h"

#include <QFile>
#include <QUrl>
#ifdef Q_OS_MACOS
#include <QProcess>
#else
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#endif

namespace {

#ifdef Q_OS_MACOS
void Reveal(const QUrl& item, const std::function<void()>& failed)
{
    const QStringList arguments = {QStringLiteral("-R"), item.toLocalFile()};
    if (!QProcess::startDetached(QStringLiteral("/usr/bin/open"), arguments)) failed();
}
#else
/// Asks the file manager, and doesn't wait for it.
void Reveal(const QUrl& item, const std::function<void()>& failed)
{
    constexpr int patience = 5000;
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    question << QStringList(item.toString(QUrl::FullyEncoded)) << QString();
    const auto call = QDBusConnection::sessionBus().asyncCall(question, patience);
    auto* const watcher = new QDBusPendingCallWatcher(call);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, item, failed] {
        watcher->deleteLater();
        // No bus, or a desktop whose file manager can't select: the folder that holds the item is the next best.
        if (watcher->isError() && !QDesktopServices::openUrl(item.adjusted(QUrl::RemoveFilename))) failed();
    });
}
#endif

} // namespace

void RevealItem(const FolderItem& item, const std::function<void()>& failed)
{
    if (Probe* const probe = Probe::Current())
        probe->Revealed.push_back(item.NativePath());
    else
        Reveal(QUrl::fromLocalFile(QFile::decodeName(item.Path().c_str())), failed);
}
