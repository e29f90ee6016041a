#include "hosts/qt/WaylandSession.h"

#include <QGuiApplication>

namespace vantorel {

bool isWaylandSession()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace vantorel
