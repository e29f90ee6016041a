#include "panel/palettes/PaletteRefresh.h"

namespace vantorel {

PaletteRefresh::PaletteRefresh(PaletteSession& session) : _session(session)
{
    _steps.setInterval(0);
    connect(&_steps, &QTimer::timeout, this, &PaletteRefresh::takeStep);
}

void PaletteRefresh::start()
{
    if (isRunning()) {
        _isWantedAgain = true;
        return;
    }
    _isWantedAgain = false;
    _nextShown = filesOfStep;
    _session.beginRefresh();
    _steps.start();
    takeStep();
}

void PaletteRefresh::stop()
{
    _isWantedAgain = false;
    if (isRunning()) finish();
}

void PaletteRefresh::takeStep()
{
    if (_session.continueRefresh(filesOfStep)) {
        finish();
        if (_isWantedAgain) start();
        return;
    }
    const auto [files, allFiles] = _session.refreshProgress();
    emit progressed(static_cast<qsizetype>(files), static_cast<qsizetype>(allFiles));
    // To show n lists takes time in proportion to n, so the intervals grow with them.
    if (files < _nextShown) return;
    _nextShown = 2 * files;
    _session.showRefreshed();
    emit foundMore();
}

void PaletteRefresh::finish()
{
    _steps.stop();
    emit finished(_session.endRefresh());
}

}  // namespace vantorel
