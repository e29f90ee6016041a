#include <QApplication>
#include <QLabel>
#include <QWidget>

/// The least that a program with a window costs: an empty one of the panel's size. With an argument
/// it shows that as a line of text: the first text is when Qt looks for fonts.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(260, 426);
    if (argc > 1) new QLabel(QString::fromLocal8Bit(argv[1]), &window);
    window.show();
    return QApplication::exec();
}
