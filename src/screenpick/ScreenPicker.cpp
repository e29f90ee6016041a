#include "screenpick/ScreenPicker.h"

#include "screenpick/DesktopScreenPicker.h"
#include "screenpick/MagnifierPickMethod.h"
#include "screenpick/PortalPickMethod.h"

namespace vantorel {

std::unique_ptr<ScreenPicker> makeScreenPicker()
{
    DesktopScreenPicker::Methods methods;
    methods.push_back(
        std::make_unique<PortalPickMethod>([] { return QDBusConnection::sessionBus(); }));
    methods.push_back(std::make_unique<MagnifierPickMethod>());
    return std::make_unique<DesktopScreenPicker>(std::move(methods));
}

}  // namespace vantorel
