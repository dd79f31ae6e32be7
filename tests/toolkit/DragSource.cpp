/// A window from which one file can be dragged.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

struct Source : QWidget {
    void mousePressEvent(QMouseEvent*) override
    {
        auto* const drag = new QDrag(this);
        drag->setMimeData(new QMimeData);
        drag->mimeData()->setUrls({QUrl::fromLocalFile(QApplication::arguments().at(1))});
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
