#include "dialogswitch/QtSwitch.h"

namespace vantorel {

QtSwitch::QtSwitch(PosixFiles& files, const DialogSwitchPlaces& places)
    : SessionSwitch(files, places, DialogPrograms::qt,
                    {"qt/generic/vantorel-qt5.so", "qt/generic/vantorel-qt6.so"})
{
    addVariable({"QT_PLUGIN_PATH", loaders().copyOf("qt"), ':'});
    addVariable({"QT_QPA_GENERIC_PLUGINS", "vantorel", ','});
}

}  // namespace vantorel
