/// A window from which one file can be dragged.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

class Source final : public QWidget {
public:
    explicit Source(QString file)
        : file_(std::move(file))
    {
        setWindowTitle(QStringLiteral("Drag source"));
        setGeometry(900, 500, 200, 200);
    }

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        auto* const dragged = new QMimeData;
        dragged->setUrls({QUrl::fromLocalFile(file_)});
        auto* const drag = new QDrag(this);
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }

private:
    QString file_;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Source source(QString::fromLocal8Bit(argv[1]));
    source.show();
    return QApplication::exec();
}
