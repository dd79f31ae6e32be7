#include "toolkit/RevealInFileManager.h"

#include <QProcess>
#include <QUrl>

void RevealInFileManager(const QUrl& item)
{
    QProcess::startDetached(QStringLiteral("/usr/bin/open"), {QStringLiteral("-R"), item.toLocalFile()});
}
