#include "panel/widgets/PanelSettings.h"

namespace vantorel {
namespace {

PanelSettings* settingsInUse = nullptr;

}  // namespace

PanelSettings::PanelSettings(const HostFiles& files) : _settings(files)
{
    settingsInUse = this;
}

PanelSettings::~PanelSettings()
{
    if (settingsInUse == this) settingsInUse = nullptr;
}

HexForm PanelSettings::hexForm()
{
    return settingsInUse != nullptr ? settingsInUse->_settings.current().hexForm() : HexForm();
}

}  // namespace vantorel
