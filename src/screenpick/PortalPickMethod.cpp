#include "screenpick/PortalPickMethod.h"

#include "screenpick/PortalRequest.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace vantorel {
namespace {

/// The window in the portal's terms. Empty for a Wayland window, whose handle needs a protocol that
/// Qt does not support. The portal allows that.
QString portalNameOf(const QWidget* parent)
{
    if (!parent || QGuiApplication::platformName() != QLatin1String("xcb")) return {};
    const QWindow* window = parent->window()->windowHandle();
    if (!window || !window->handle()) return {};
    return QStringLiteral("x11:") + QString::number(window->winId(), 16);
}

}  // namespace

PortalPickMethod::PortalPickMethod(std::function<QDBusConnection()> bus) : _bus(std::move(bus)) {}

PortalPickMethod::~PortalPickMethod()
{
    cancel();
}

void PortalPickMethod::start(QWidget* parent, const PickOptions&)
{
    _request = new PortalRequest(_bus());
    connect(_request, &PortalRequest::finished, this, &PickMethod::finished);
    _request->start(portalNameOf(parent));
}

void PortalPickMethod::cancel()
{
    if (_request) _request->cancel();
    _request.clear();
}

}  // namespace vantorel
