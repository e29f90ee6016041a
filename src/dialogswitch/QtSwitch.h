#pragma once

#include "dialogswitch/SessionSwitch.h"

namespace vantorel {

/// Qt 5 and Qt 6 load the plug-ins that `QT_QPA_GENERIC_PLUGINS` names from the folders in
/// `QT_PLUGIN_PATH`.
class QtSwitch final : public SessionSwitch {
public:
    QtSwitch(PosixFiles& files, const DialogSwitchPlaces& places);
};

}  // namespace vantorel
