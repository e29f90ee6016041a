/// A program with a text field and a colour dialog as drop targets. It prints the screen positions
/// of both, then their contents whenever these change. With --offer FILE it is a file that can be
/// dragged, and prints its place on the screen.
#include <QApplication>
#include <QColorDialog>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>

#include <cstdio>

namespace {

void print(const QString& line)
{
    // If stdout is closed there is no way to report it.
    static_cast<void>(std::puts(line.toUtf8().constData()));
    static_cast<void>(std::fflush(stdout));
}

QString middleOf(const QWidget* widget)
{
    const QPoint middle = widget->mapToGlobal(widget->rect().center());
    return QStringLiteral("%1 %2").arg(middle.x()).arg(middle.y());
}

/// A file as in a file manager.
class OfferedFile final : public QLabel {
public:
    explicit OfferedFile(const QString& path) : QLabel(path), _path(path) {}

protected:
    void mouseMoveEvent(QMouseEvent*) override
    {
        auto* file = new QMimeData;
        file->setUrls({QUrl::fromLocalFile(_path)});
        auto* drag = new QDrag(this);
        drag->setMimeData(file);
        drag->exec(Qt::CopyAction);
    }

private:
    QString _path;
};

int offer(const QString& path)
{
    OfferedFile file(path);
    file.setGeometry(700, 20, 200, 60);
    file.show();
    QApplication::processEvents();
    print(middleOf(&file));
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--offer"))
        return offer(arguments.at(2));
    QWidget window;
    window.setWindowTitle(QStringLiteral("Qt target"));
    auto* text = new QLineEdit(&window);
    auto* dialog = new QColorDialog(Qt::white, &window);
    dialog->setWindowFlags(Qt::Widget);
    dialog->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(text);
    layout->addWidget(dialog);
    QObject::connect(text, &QLineEdit::textChanged, text,
                     [](const QString& now) { print(QStringLiteral("text ") + now); });
    QObject::connect(dialog, &QColorDialog::currentColorChanged, dialog,
                     [](const QColor& now) { print(QStringLiteral("color ") + now.name()); });
    window.move(400, 20);
    window.show();
    QApplication::processEvents();
    // The large swatch of the dialog takes colours. Its class is QColorShowLabel in Qt 6.4, and
    // QtPrivate::QColorShowLabel in Qt 6.8.
    for (const QWidget* child : dialog->findChildren<QWidget*>()) {
        if (QByteArrayView(child->metaObject()->className()).endsWith("QColorShowLabel")) {
            print(QStringLiteral("places %1 %2").arg(middleOf(text), middleOf(child)));
        }
    }
    return QApplication::exec();
}
