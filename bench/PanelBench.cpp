#include "panel/window/PanelWindow.h"
#include "plugins/PluginLoader.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <memory>

/// The whole panel with the real page, off screen.
namespace {

using namespace vantorel;

/// Matches the names of the benchmark of drag steps without a window.
QByteArray paletteOfSize(int count)
{
    QByteArray text = "GIMP Palette\nName: Bench\nColumns: 0\n";
    for (int i = 0; i < count; ++i) {
        text += QByteArray::number((i * 37) % 255) + ' ' + QByteArray::number((i * 101) % 255) +
                ' ' + QByteArray::number((i * 7 + i / 255) % 255) + "\tname " +
                QByteArray::number(i) + '\n';
    }
    return text;
}

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("the benchmark's folder cannot be written");
}

/// Drags through a column of digits: the pointer is where the last step has left it, a step moves
/// it to the next cell, and ends when the whole window has been painted anew.
class Drag {
public:
    Drag(benchmark::State& state, PanelWindow& window)
        : _state(state), _window(window), _view(*window.findChild<QWidget*>("_hexColorsView"))
    {
        QObject::connect(&_timer, &QTimer::timeout, [this] { step(); });
    }
    void run()
    {
        _timer.start(0);
        send(QEvent::MouseButtonPress);
    }

private:
    void step()
    {
        _window.repaint();
        // The page waits for mouse events in its own loop, so the benchmark's loop continues from
        // here.
        if (_state.KeepRunning()) {
            _row = (_row + 1) % 16;
            send(QEvent::MouseMove);
        } else {
            _timer.stop();
            send(QEvent::MouseButtonRelease);
        }
    }
    void send(QEvent::Type type)
    {
        const double cell = (_view.height() - 12) / 16.0;
        const QPointF at(_view.width() / 10.0, 6 + cell * (_row + 0.5));
        const bool moves = type == QEvent::MouseMove;
        const bool released = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, _view.mapToGlobal(at), moves ? Qt::NoButton : Qt::LeftButton,
                          released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&_view, &event);
    }

    benchmark::State& _state;
    PanelWindow& _window;
    QWidget& _view;
    QTimer _timer;
    int _row = 0;
};

void dragStep(benchmark::State& state)
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    const QString data = folder.filePath(QStringLiteral("Vantorel"));
    QDir().mkpath(data + QStringLiteral("/Palettes"));
    write(data + QStringLiteral("/Palettes/Bench.gpl"),
          paletteOfSize(static_cast<int>(state.range(0))));
    write(data + QStringLiteral("/Settings.plist"), "{ HexColorLlst = Bench; }");

    const PluginSearch search =
        loadPlugins(pluginFolders(QCoreApplication::applicationDirPath().toStdString(), {}), {});
    QtDesktop desktop;
    std::vector<Message> problems;
    PanelWindow window(desktop, search.plugins, problems);
    window.show();
    QCoreApplication::processEvents();
    benchmark::IterationCount changes = 0;
    QObject::connect(&window.colors(), &PanelColors::colorChanged, [&] { ++changes; });
    Drag(state, window).run();
    if (changes < state.iterations()) state.SkipWithError("a step has changed no colour");
}
BENCHMARK(dragStep)->ArgName("names")->Arg(17)->Arg(216)->Arg(30000)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    // Lists of installed programs must not affect the benchmark.
    qputenv("XDG_DATA_DIRS", "/nonexistent");
    qputenv("XDG_CONFIG_HOME", "/nonexistent");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
