#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "screenpick/DesktopScreenPicker.h"
#include "screenpick/MagnifierPickMethod.h"
#include "screenpick/PortalPickMethod.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

using namespace vantorel;

namespace {

/// Fills all screens with a picture in which the colour of every pixel encodes its position.
class PatternWindow final : public QWidget {
public:
    PatternWindow() : QWidget(nullptr, Qt::Window | Qt::BypassWindowManagerHint)
    {
        setWindowTitle(QStringLiteral("Pattern"));
        setAttribute(Qt::WA_OpaquePaintEvent);
        const QRect all = screen()->virtualGeometry();
        setGeometry(all);
        _image = QImage(all.size(), QImage::Format_RGB32);
        for (int y = 0; y < _image.height(); ++y) {
            for (int x = 0; x < _image.width(); ++x)
                _image.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 * 16 + y / 256));
        }
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, _image); }

private:
    QImage _image;
};

void print(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QString textOf(const ScreenPickResult& result)
{
    switch (result.outcome) {
        case ScreenPickResult::Outcome::picked:
            return QStringLiteral("picked ") + qColorFrom(result.color).name();
        case ScreenPickResult::Outcome::cancelled:
            return QStringLiteral("cancelled");
        case ScreenPickResult::Outcome::notPossible:
            break;
    }
    return QStringLiteral("not possible: ") + translated(result.reason);
}

/// A window with a button that picks.
class TrialWindow final : public QWidget {
public:
    explicit TrialWindow(ScreenPicker& picker)
    {
        setWindowTitle(QStringLiteral("Picking a colour from the screen"));
        auto* layout = new QVBoxLayout(this);
        auto* button = new QPushButton(QStringLiteral("&Pick"));
        auto* label = new QLabel(QStringLiteral("Nothing yet"));
        label->setWordWrap(true);
        label->setMinimumWidth(280);
        layout->addWidget(button);
        layout->addWidget(label);
        connect(button, &QPushButton::clicked, this, [this, label, &picker] {
            picker.start(this, {}, [this, label](const ScreenPickResult& result) {
                label->setText(textOf(result));
                print(textOf(result));
                if (result.outcome != ScreenPickResult::Outcome::picked) return;
                QPalette colored = palette();
                colored.setColor(QPalette::Window, qColorFrom(result.color));
                setPalette(colored);
            });
        });
    }
};

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Tries picking a colour from the screen."));
    parser.addHelpOption();
    const auto flag = [&parser](const char* name, const char* text) {
        const QCommandLineOption option(QString::fromLatin1(name), QString::fromLatin1(text));
        parser.addOption(option);
        return option;
    };
    const auto pattern = flag("pattern", "Fill the screens with a known picture.");
    const auto pick = flag("pick", "Pick at once, print the result and end.");
    const auto again = flag("again", "With --pick: start a second time while the first is on.");
    const auto several = flag("several", "With --pick: several colours can be picked.");
    const auto dialog = flag("dialog", "With --pick: pick while a modal dialogue is open.");
    const auto portalOnly = flag("portal", "Pick through the desktop portal or not at all.");
    const auto magnifierOnly = flag("magnifier", "Pick with the magnifier or not at all.");
    const auto dark = flag("dark", "Use a dark theme.");
    parser.process(application);

    if (parser.isSet(dark))
        QApplication::setPalette(QPalette(QColor(0x3a, 0x3b, 0x40), QColor(0x2b, 0x2c, 0x30)));
    if (parser.isSet(pattern)) {
        PatternWindow window;
        window.show();
        return QApplication::exec();
    }

    DesktopScreenPicker::Methods methods;
    if (!parser.isSet(magnifierOnly)) {
        methods.push_back(
            std::make_unique<PortalPickMethod>([] { return QDBusConnection::sessionBus(); }));
    }
    const MagnifierPickMethod* magnifier = nullptr;
    if (!parser.isSet(portalOnly)) {
        auto method = std::make_unique<MagnifierPickMethod>();
        magnifier = method.get();
        methods.push_back(std::move(method));
    }
    DesktopScreenPicker picker(std::move(methods));
    if (!parser.isSet(pick)) {
        TrialWindow window(picker);
        window.show();
        return QApplication::exec();
    }

    QDialog modalDialog;
    modalDialog.setModal(true);
    if (parser.isSet(dialog)) modalDialog.show();
    PickOptions options;
    options.showsHints = true;
    if (parser.isSet(several)) {
        options.pickedOnTheWay = [](const HostColor& color) {
            print(QStringLiteral("on the way: picked ") + qColorFrom(color).name());
        };
    }
    const auto end = [](const ScreenPickResult& result) {
        print(textOf(result));
        QApplication::quit();
    };
    bool toStartAgain = parser.isSet(again);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!magnifier || !magnifier->magnifier() || !magnifier->magnifier()->hasInput()) return;
        if (toStartAgain) {
            toStartAgain = false;
            picker.start(nullptr, options, end);
        } else {
            print(QStringLiteral("ready"));
            look.stop();
        }
    });
    constexpr int lookInterval = 20;  // ms
    look.start(lookInterval);
    if (toStartAgain) {
        picker.start(nullptr, {}, [](const ScreenPickResult& result) {
            print(QStringLiteral("first: ") + textOf(result));
        });
    } else {
        picker.start(nullptr, options, end);
    }
    return QApplication::exec();
}
