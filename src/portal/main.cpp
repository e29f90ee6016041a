#include "portal/PortalBackend.h"
#include "screenpick/DesktopScreenPicker.h"
#include "screenpick/MagnifierPickMethod.h"

#include <QApplication>

/// The back end of the desktop portal. The session bus starts it for a call. Exits with status 1 if
/// it cannot serve.
int main(int argc, char** argv)
{
    using namespace vantorel;

    const QApplication application(argc, argv);
    // The magnifier is its only window.
    QApplication::setQuitOnLastWindowClosed(false);
    DesktopScreenPicker::Methods methods;
    methods.push_back(std::make_unique<MagnifierPickMethod>());
    PortalBackend backend(QDBusConnection::sessionBus(),
                          std::make_unique<DesktopScreenPicker>(std::move(methods)));
    QObject::connect(&backend, &PortalBackend::ended, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    return backend.begin() ? QApplication::exec() : 1;
}
