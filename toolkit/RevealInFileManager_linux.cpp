#include "toolkit/RevealInFileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QUrl>

void RevealInFileManager(const QUrl& item)
{
    constexpr int patience = 5000;
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    question << QStringList(item.toString(QUrl::FullyEncoded)) << QString();
    const auto call = QDBusConnection::sessionBus().asyncCall(question, patience);
    auto* const watcher = new QDBusPendingCallWatcher(call);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, item] {
        watcher->deleteLater();
        // No bus, or a desktop whose file manager can't select: the folder that holds the item is the next best.
        if (watcher->isError()) QDesktopServices::openUrl(item.adjusted(QUrl::RemoveFilename));
    });
}
