#include "picker/QTXHexColorPicker.h"

#include <algorithm>
#include <array>

namespace vantorel {

const QTXHexColorPicker::NamedAction* QTXHexColorPicker::actionNamed(std::string_view name)
{
    static constexpr std::array actions{
        NamedAction{"redHexAction", &QTXHexColorPicker::redHexAction},
        NamedAction{"greenHexAction", &QTXHexColorPicker::greenHexAction},
        NamedAction{"blueHexAction", &QTXHexColorPicker::blueHexAction},
        NamedAction{"fullHexAction", &QTXHexColorPicker::fullHexAction},
        NamedAction{"rgbDecimalHexAction", &QTXHexColorPicker::rgbDecimalHexAction},
        NamedAction{"settingsButtonAction", &QTXHexColorPicker::settingsButtonAction},
        NamedAction{"settingsDoneButtonAction", &QTXHexColorPicker::settingsDoneButtonAction},
        NamedAction{"sliderViewModeAction", &QTXHexColorPicker::sliderViewModeAction},
        NamedAction{"paletteViewModeAction", &QTXHexColorPicker::paletteViewModeAction},
        NamedAction{"cubeViewModeAction", &QTXHexColorPicker::cubeViewModeAction},
        NamedAction{"increaseCubeRingsAction", &QTXHexColorPicker::increaseCubeRingsAction},
        NamedAction{"decreaseCubeRingsAction", &QTXHexColorPicker::decreaseCubeRingsAction},
        NamedAction{"entryFormAction", &QTXHexColorPicker::entryFormAction},
        NamedAction{"poundSignAction", &QTXHexColorPicker::poundSignAction},
        NamedAction{"componentDisplayAction", &QTXHexColorPicker::componentDisplayAction},
        NamedAction{"cCodeEntryFormAction", &QTXHexColorPicker::cCodeEntryFormAction},
        NamedAction{"codeDragTypePopupAction", &QTXHexColorPicker::codeDragTypePopupAction},
        NamedAction{"moreIndicatorAction", &QTXHexColorPicker::moreIndicatorAction},
        NamedAction{"helpHexColorAction", &QTXHexColorPicker::helpHexColorAction},
        NamedAction{"colorListHexAction", &QTXHexColorPicker::colorListHexAction},
        NamedAction{"colorNameHexAction", &QTXHexColorPicker::colorNameHexAction},
    };
    const auto* const found =
        std::find_if(actions.begin(), actions.end(),
                     [&](const NamedAction& action) { return action.name == name; });
    return found == actions.end() ? nullptr : found;
}

HostControl::Action QTXHexColorPicker::actionFunction(const std::string& name)
{
    const NamedAction* action = actionNamed(name);
    if (action == nullptr) return {};
    return [this, method = action->method](HostControl& sender) { (this->*method)(&sender); };
}

bool QTXHexColorPicker::hasAction(std::string_view name)
{
    return actionNamed(name) != nullptr;
}

bool QTXHexColorPicker::performAction(std::string_view name, HostControl* sender)
{
    const NamedAction* action = actionNamed(name);
    if (action == nullptr) return false;
    (this->*(action->method))(sender);
    return true;
}

}  // namespace vantorel
