#include <QApplication>
#include <QColorDialog>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>
#include <cstring>

/// A program of somebody else, which knows nothing of us. Opens a colour dialog and prints what it
/// hears of it:
///
///     place NAME X Y WIDTH HEIGHT     each visible widget with a name, and OK
///     tip NAME TEXT                   the tool tip of each of them that has one
///     own TEXT                        what the program itself makes of the word "Settings"
///     shown WIDTH HEIGHT
///     current #AARRGGBB      each change
///     selected #AARRGGBB     OK
///     rejected
///     destroyed
///
/// Options: alpha, not-native, modal (blocks in QColorDialog::getColor), dark, gone (the dialog is
/// destroyed after the third change), late (shown some time after it was made), brief
/// (ends when the dialog is shown), texts (prints `tip` and `own`), none (no dialog: ends when the
/// event loop has started), idle (no dialog).
namespace {

void print(const char* what, const QColor& color)
{
    std::printf("%s %s\n", what, color.name(QColor::HexArgb).toUtf8().constData());
    std::fflush(stdout);
}

/// Only the page names its widgets.
void printPlaces(const QWidget& window)
{
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QPushButton*>(widget);
        const bool isOk = button != nullptr && button->isDefault();
        const QString name = isOk ? QStringLiteral("ok") : widget->objectName();
        if (name.isEmpty() || !widget->isVisible()) continue;
        const QPoint place = widget->mapTo(&window, QPoint());
        std::printf("place %s %d %d %d %d\n", name.toUtf8().constData(), place.x(), place.y(),
                    widget->width(), widget->height());
    }
    std::printf("shown %d %d\n", window.width(), window.height());
    std::fflush(stdout);
}

void printTexts(const QWidget& window)
{
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->toolTip().isEmpty()) continue;
        std::printf("tip %s %s\n", widget->objectName().toUtf8().constData(),
                    widget->toolTip().toUtf8().constData());
    }
    std::printf("own %s\n",
                QCoreApplication::translate("Vantorel", "Settings").toUtf8().constData());
}

void useDarkPalette()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette(QColor(53, 53, 58), QColor(40, 40, 44));
    palette.setColor(QPalette::Highlight, QColor(70, 130, 220));
    QApplication::setPalette(palette);
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication program(argc, argv);
    const auto has = [&](const char* option) {
        for (int i = 1; i < argc; ++i) {
            if (std::strcmp(argv[i], option) == 0) return true;
        }
        return false;
    };
    if (has("idle")) return QApplication::exec();
    if (has("none")) {
        QTimer::singleShot(0, &program, &QCoreApplication::quit);
        return QApplication::exec();
    }
    if (has("dark")) useDarkPalette();
    QColorDialog::ColorDialogOptions options;
    if (has("alpha")) options |= QColorDialog::ShowAlphaChannel;
    if (has("not-native")) options |= QColorDialog::DontUseNativeDialog;
    const QColor initial(0x33, 0x66, 0x99);
    if (has("modal")) {
        const QColor chosen =
            QColorDialog::getColor(initial, nullptr, QStringLiteral("Trial"), options);
        if (chosen.isValid()) {
            print("selected", chosen);
        } else {
            std::puts("rejected");
        }
        return 0;
    }
    auto* dialog = new QColorDialog(initial);
    dialog->setWindowTitle(QStringLiteral("Trial"));
    dialog->setOptions(options);
    int changesToLive = has("gone") ? 3 : -1;
    QObject::connect(dialog, &QColorDialog::currentColorChanged, dialog, [&](const QColor& color) {
        print("current", color);
        if (--changesToLive == 0) QTimer::singleShot(0, dialog, [=] { delete dialog; });
    });
    QObject::connect(dialog, &QObject::destroyed, &program, [] {
        std::puts("destroyed");
        std::fflush(stdout);
        QTimer::singleShot(500, QCoreApplication::instance(), &QCoreApplication::quit);
    });
    QObject::connect(dialog, &QColorDialog::colorSelected, dialog,
                     [](const QColor& color) { print("selected", color); });
    QObject::connect(dialog, &QDialog::rejected, dialog, [] { std::puts("rejected"); });
    QObject::connect(dialog, &QDialog::finished, &program, &QCoreApplication::quit);
    const bool isBrief = has("brief");
    const bool hasTexts = has("texts");
    const auto show = [=] {
        dialog->show();
        QTimer::singleShot(0, dialog, [=] {
            if (hasTexts) printTexts(*dialog);
            printPlaces(*dialog);
            if (isBrief) QCoreApplication::quit();
        });
    };
    if (has("late")) {
        QTimer::singleShot(100, dialog, show);
    } else {
        show();
    }
    return QApplication::exec();
}
