#include "panel/bus/ChangeAnnouncer.h"

namespace vantorel {

ChangeAnnouncer::ChangeAnnouncer()
{
    _timer.setSingleShot(true);
    _timer.setInterval(leastInterval);
    // Otherwise Qt may shift it by a millisecond to coincide with other timers.
    _timer.setTimerType(Qt::PreciseTimer);
    connect(&_timer, &QTimer::timeout, this, [this] {
        if (_isWaiting) announce();
    });
}

void ChangeAnnouncer::noteChange()
{
    if (_timer.isActive()) {
        _isWaiting = true;
    } else {
        announce();
    }
}

void ChangeAnnouncer::announce()
{
    _isWaiting = false;
    _timer.start();
    emit due();
}

}  // namespace vantorel
