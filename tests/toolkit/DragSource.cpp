/// A window from which one file can be dragged.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

struct Source : QWidget {
    void mousePressEvent(QMouseEvent*) override
    {
        auto* const dragged = new QMimeData;
        dragged->setUrls({QUrl::fromLocalFile(QApplication::arguments().at(1))});
        auto* const drag = new QDrag(this);
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Source source;
    source.setWindowTitle(QStringLiteral("Drag source"));
    source.setGeometry(900, 500, 200, 200);
    source.show();
    return QApplication::exec();
}
