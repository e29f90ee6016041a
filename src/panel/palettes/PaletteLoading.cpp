#include "panel/palettes/PaletteLoading.h"

namespace vantorel {

PaletteLoading::PaletteLoading(PaletteSession& session) : _session(session)
{
    _steps.setInterval(0);
    connect(&_steps, &QTimer::timeout, this, &PaletteLoading::takeStep);
}

void PaletteLoading::start()
{
    if (_list != _session.listId()) {
        _list = _session.listId();
        _isStopped = false;
        _nextShown = 0;
        _steps.stop();
    }
    if (_isStopped || isRunning()) return;
    if (_session.continueReading(linesOfStep)) return;
    _steps.start();
    takeStep();
}

void PaletteLoading::stop()
{
    if (!isRunning()) return;
    _steps.stop();
    _isStopped = true;
    emit finished();
}

void PaletteLoading::pause()
{
    _steps.stop();
}

void PaletteLoading::takeStep()
{
    if (_session.listId() != _list || _session.continueReading(linesOfStep)) {
        _steps.stop();
        emit finished();
        return;
    }
    emit progressed(_session.percentRead());
    // To show n colours takes time in proportion to n, so the intervals grow with them.
    const std::size_t count = _session.entriesSoFar().size();
    if (count < _nextShown) return;
    _nextShown = 2 * count;
    emit foundMore();
}

}  // namespace vantorel
