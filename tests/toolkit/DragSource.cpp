/// A window from which the files that it is started with can be dragged.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

struct Source : QWidget {
    void mousePressEvent(QMouseEvent*) override
    {
        QList<QUrl> urls;
        for (const QString& item : QApplication::arguments().mid(1))
            urls << QUrl::fromLocalFile(item);
        auto* const drag = new QDrag(this);
        drag->setMimeData(new QMimeData);
        drag->mimeData()->setUrls(urls);
        drag->exec(Qt::CopyAction);
    }
};

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Source source;
    source.setWindowTitle(QStringLiteral("Drag source"));
    source.setGeometry(900, 500, 200, 200);
    source.show();
    return QApplication::exec();
}
