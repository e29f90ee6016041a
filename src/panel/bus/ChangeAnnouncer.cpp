#include "panel/bus/ChangeAnnouncer.h"

#include <utility>

namespace vantorel {

ChangeAnnouncer::ChangeAnnouncer(std::function<void()> tell) : _tell(std::move(tell))
{
    _timer.setSingleShot(true);
    _timer.setInterval(leastInterval);
    // Else Qt may move it by a millisecond to suit other timers.
    _timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&_timer, &QTimer::timeout, &_timer, [this] {
        if (_isWaiting) announce();
    });
}

void ChangeAnnouncer::changed()
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
    _tell();
}

}  // namespace vantorel
