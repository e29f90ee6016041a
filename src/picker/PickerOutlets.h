#pragma once

#include "host/HostControls.h"

namespace vantorel {

class PickerInterface;

/// The controls that the picker uses, by their names in the interface file. All are null until
/// `connectOutlets` succeeds; after that, none is.
struct PickerOutlets {
    HostView* _hexPickerView = nullptr;
    HostCustomView* _hexSettingsViewOutlet = nullptr;
    HostCustomView* _hexColorsViewOutlet = nullptr;
    HostTextField* _redHexText = nullptr;
    HostTextField* _greenHexText = nullptr;
    HostTextField* _blueHexText = nullptr;
    HostTextField* _fullHexText = nullptr;
    HostTextField* _rgbDecimalText = nullptr;
    HostTextField* _objCCodeText = nullptr;
    HostTextField* _cursorReadoutText = nullptr;
    HostPopUpButton* componentDisplayPopUp = nullptr;
    HostTextField* componentDisplayLabel = nullptr;
    HostPopUpButton* entryFormPopUp = nullptr;
    HostButton* poundSignCheckbox = nullptr;
    HostButton* settingsDoneButton = nullptr;
    HostPopUpButton* cCodeEntryFormPopUp = nullptr;
    HostPopUpButton* codeDragTypePopUp = nullptr;
    HostTextField* codeDragTypeLabel = nullptr;
    HostTextField* codeCodeLabel = nullptr;
    HostButton* pickViewModeButton = nullptr;  ///< Slider; the other modes follow
    HostButton* paletteViewModeButton = nullptr;
    HostButton* wheelViewModeButton = nullptr;
    HostButton* increaseCubeRingsButton = nullptr;
    HostButton* decreaseCubeRingsButton = nullptr;
    HostPopUpButton* hexColorsListPopUp = nullptr;
    HostPopUpButton* hexColorNamePopUp = nullptr;
    HostButton* moreIndicatorButton = nullptr;
    HostButton* helpButton = nullptr;
    HostTextField* _versionLabelText = nullptr;

    /// Connects all outlets. Returns false, connecting none, if the interface lacks one or has it
    /// with another class.
    bool connectOutlets(const PickerInterface& interface);
};

}  // namespace vantorel
