#include "picker/PickerOutlets.h"

#include "picker/PickerInterface.h"

namespace vantorel {
namespace {

template <class Control>
bool connect(const PickerInterface& interface, const char* name, Control*& outlet)
{
    outlet = interface.control<Control>(name);
    return outlet != nullptr;
}

}  // namespace

bool PickerOutlets::connectOutlets(const PickerInterface& interface)
{
    PickerOutlets found;
    const bool complete =
        connect(interface, "_hexPickerView", found._hexPickerView) &&
        connect(interface, "_hexSettingsView", found._hexSettingsViewOutlet) &&
        connect(interface, "_hexColorsView", found._hexColorsViewOutlet) &&
        connect(interface, "_redHexText", found._redHexText) &&
        connect(interface, "_greenHexText", found._greenHexText) &&
        connect(interface, "_blueHexText", found._blueHexText) &&
        connect(interface, "_fullHexText", found._fullHexText) &&
        connect(interface, "_rgbDecimalText", found._rgbDecimalText) &&
        connect(interface, "_objCCodeText", found._objCCodeText) &&
        connect(interface, "_cursorReadoutText", found._cursorReadoutText) &&
        connect(interface, "componentDisplayPopUp", found.componentDisplayPopUp) &&
        connect(interface, "componentDisplayLabel", found.componentDisplayLabel) &&
        connect(interface, "entryFormPopUp", found.entryFormPopUp) &&
        connect(interface, "poundSignCheckbox", found.poundSignCheckbox) &&
        connect(interface, "settingsDoneButton", found.settingsDoneButton) &&
        connect(interface, "cCodeEntryFormPopUp", found.cCodeEntryFormPopUp) &&
        connect(interface, "codeDragTypePopUp", found.codeDragTypePopUp) &&
        connect(interface, "codeDragTypeLabel", found.codeDragTypeLabel) &&
        connect(interface, "codeCodeLabel", found.codeCodeLabel) &&
        connect(interface, "pickViewModeButton", found.pickViewModeButton) &&
        connect(interface, "paletteViewModeButton", found.paletteViewModeButton) &&
        connect(interface, "wheelViewModeButton", found.wheelViewModeButton) &&
        connect(interface, "increaseCubeRingsButton", found.increaseCubeRingsButton) &&
        connect(interface, "decreaseCubeRingsButton", found.decreaseCubeRingsButton) &&
        connect(interface, "hexColorsListPopUp", found.hexColorsListPopUp) &&
        connect(interface, "hexColorNamePopUp", found.hexColorNamePopUp) &&
        connect(interface, "moreIndicatorButton", found.moreIndicatorButton) &&
        connect(interface, "helpButton", found.helpButton) &&
        connect(interface, "_versionLabelText", found._versionLabelText);
    if (complete) *this = found;
    return complete;
}

}  // namespace vantorel
