#pragma once

#include "screenpick/PickMethod.h"

#include <QDBusConnection>
#include <QPointer>

#include <functional>

namespace vantorel {

class PortalRequest;

/// Picks through the desktop portal (`org.freedesktop.portal.Screenshot`, version 2 or later): the
/// desktop shows its own picker, which also works where programs cannot see the screen.
class PortalPickMethod final : public PickMethod {
    Q_OBJECT

public:
    /// `bus` returns the session bus; it is called at each start.
    explicit PortalPickMethod(std::function<QDBusConnection()> bus);
    ~PortalPickMethod() override;

    /// The desktop's picker picks single pixels.
    [[nodiscard]] bool canAverage() const override { return false; }
    void start(QWidget* parent, const PickOptions& options) override;
    void cancel() override;

private:
    std::function<QDBusConnection()> _bus;
    QPointer<PortalRequest> _request;
};

}  // namespace vantorel
