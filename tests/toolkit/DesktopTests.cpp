#include "toolkit/Desktop.h"

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

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

} // namespace

#include "DesktopTests.moc"
