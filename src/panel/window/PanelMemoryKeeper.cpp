#include "panel/window/PanelMemoryKeeper.h"

#include "panel/palettes/PalettesPage.h"
#include "panel/window/PanelWindow.h"

#include <QEvent>
#include <QGuiApplication>

#include <chrono>
#include <cstdlib>

namespace vantorel {
namespace {

/// A drag changes the colour with each move of the mouse. Not longer, because this much is lost
/// when the panel is killed.
constexpr std::chrono::seconds writingDelay{2};

PanelMemoryKeeper* keeperAtExit = nullptr;

}  // namespace

PanelMemoryKeeper::PanelMemoryKeeper(PanelWindow& window)
    : _window(window), _known(readPanelMemory())
{
    _window.recall(_known);
    _timer.setSingleShot(true);
    _timer.setInterval(writingDelay);
    connect(&_timer, &QTimer::timeout, this, &PanelMemoryKeeper::save);
}

PanelMemoryKeeper::~PanelMemoryKeeper()
{
    if (keeperAtExit == this) keeperAtExit = nullptr;
}

void PanelMemoryKeeper::keep()
{
    const PanelColors& colors = _window.colors();
    connect(&colors, &PanelColors::colorsChanged, this, &PanelMemoryKeeper::saveSoon);
    connect(&colors, &PanelColors::historyChanged, this, &PanelMemoryKeeper::saveSoon);
    connect(&_window.exchange(), &ColorExchange::formChanged, this, &PanelMemoryKeeper::saveSoon);
    connect(&_window.pages(), &PanelPages::pageShown, this, &PanelMemoryKeeper::saveSoon);
    connect(&_window.palettes(), &PalettesPage::arrangementChanged, this,
            &PanelMemoryKeeper::saveSoon);
    connect(&_window.commands().stayOnTop(), &QAction::toggled, this, &PanelMemoryKeeper::saveSoon);
    _window.installEventFilter(this);
    // What the options have changed until now.
    saveSoon();

    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &PanelMemoryKeeper::save);
    // Qt calls exit() when the connection to the X server breaks.
    static const bool isRegistered = std::atexit([] {
                                         if (keeperAtExit != nullptr) keeperAtExit->saveAtExit();
                                     }) == 0;
    if (isRegistered) keeperAtExit = this;
}

bool PanelMemoryKeeper::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            saveSoon();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void PanelMemoryKeeper::saveSoon()
{
    // Changes that go on and on must not put it off.
    if (!_timer.isActive()) _timer.start();
}

void PanelMemoryKeeper::save()
{
    _timer.stop();
    PanelMemory memory = _window.memory();
    if (memory.geometry.isEmpty()) memory.geometry = _known.geometry;
    write(std::move(memory));
}

void PanelMemoryKeeper::saveAtExit()
{
    PanelMemory memory = _window.memory(PanelWindow::Place::leftOut);
    // The server, which knows the frame, does not answer any more.
    memory.geometry = _known.geometry;
    write(std::move(memory));
}

void PanelMemoryKeeper::write(PanelMemory memory)
{
    if (memory == _known) return;
    if (changePanelMemory(_known, memory)) _known = std::move(memory);
}

}  // namespace vantorel
