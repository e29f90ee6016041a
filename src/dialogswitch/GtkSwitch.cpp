#include "dialogswitch/GtkSwitch.h"

#include "dialogswitch/SharedTexts.h"
#include "dialogswitch/XSettings.h"

namespace vantorel {
namespace {

constexpr const char* loader = "gtk3/modules/libvantorel.so";

}  // namespace

GtkSwitch::GtkSwitch(PosixFiles& files, const DialogSwitchPlaces& places)
    : SessionSwitch(files, places, DialogPrograms::gtk, {loader}),
      _module(loaders().copyOf(loader)),
      _settingsFile(places.config + "/gtk-3.0/settings.ini")
{
    addVariable({"GTK_MODULES", _module, ':'});
}

DialogSwitchState GtkSwitch::state() const
{
    const DialogSwitchState state = SessionSwitch::state();
    if (state != DialogSwitchState::onAfterLogin) return state;
    return desktopSetsXSetting("Gtk/Modules") ? DialogSwitchState::onAfterLoginForDesktop
                                              : DialogSwitchState::on;
}

Status GtkSwitch::turnOn()
{
    if (Status on = SessionSwitch::turnOn(); !on) return on;
    return settings().change([this](auto text) { return withGtkModule(text, _module); },
                             [this](auto text) { return withoutGtkModule(text, _module); });
}

Status GtkSwitch::turnOff()
{
    if (Status removed =
            settings().revert([this](auto text) { return withoutGtkModule(text, _module); });
        !removed) {
        return removed;
    }
    return SessionSwitch::turnOff();
}

}  // namespace vantorel
