#include "portal/PortalPick.h"

namespace vantorel {

PortalPick::PortalPick(QDBusConnection bus, const QDBusMessage& call, const QString& handle)
    : _bus(std::move(bus)), _call(call), _handle(handle)
{
    _bus.registerObject(_handle, this, QDBusConnection::ExportScriptableSlots);
}

PortalPick::~PortalPick()
{
    _bus.unregisterObject(_handle);
}

void PortalPick::answer(Response response, const QVariantMap& results)
{
    _bus.send(_call.createReply({static_cast<uint>(response), results}));
}

void PortalPick::Close()
{
    emit closed();
}

}  // namespace vantorel
