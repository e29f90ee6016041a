#pragma once

#include "dialogswitch/SessionSwitch.h"

namespace vantorel {

/// GTK 3 loads the modules in its settings and those in `GTK_MODULES`. The settings reach programs
/// at once, but an XSETTINGS manager may replace their list of modules; the variable reaches
/// programs after the next login, on every desktop. So both are set: GTK loads the same module only
/// once.
class GtkSwitch final : public SessionSwitch {
public:
    GtkSwitch(PosixFiles& files, const DialogSwitchPlaces& places);

    [[nodiscard]] DialogSwitchState state() const override;
    [[nodiscard]] Status turnOn() override;
    [[nodiscard]] Status turnOff() override;

private:
    [[nodiscard]] SharedFile settings() { return sharedFile(_settingsFile, "settings.ini"); }

    std::string _module;
    std::string _settingsFile;
};

}  // namespace vantorel
