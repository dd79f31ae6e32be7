#include <QApplication>
#include <QLabel>
#include <QMainWindow>

/// An empty window of 760 x 500 points, or of another width and height with a text: the least that a program pays for.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(760, 500);
    if (argc == 4) {
        window.resize(QString(argv[1]).toInt(), QString(argv[2]).toInt());
        window.setCentralWidget(new QLabel(argv[3], &window));
    }
    window.show();
    return QApplication::exec();
}
