#include "hosts/qt/EventGuard.h"

#include <QEvent>

namespace vantorel {

EventGuard*& EventGuard::installed()
{
    static EventGuard* guard = nullptr;
    return guard;
}

void EventGuard::install(Failed failed)
{
    // Never destroyed, because it watches objects to the end of the program.
    if (installed() == nullptr) installed() = new EventGuard(failed);
}

void EventGuard::watch(QObject& object)
{
    if (installed() != nullptr) object.installEventFilter(installed());
}

bool EventGuard::eventFilter(QObject* watched, QEvent* event)
{
    // Delivers the event itself. Whether it goes on to a parent depends on the event alone.
    run(*watched, [&] { watched->event(event); });
    return true;
}

}  // namespace vantorel
