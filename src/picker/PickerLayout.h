#pragma once

#include "host/HostGeometry.h"

/// The layout of the picker's controls, as pure functions of frames. Every y points up. Hidden
/// controls are moved far out of sight, and marked as parked: in a page that is wide enough, even
/// those places are inside.
namespace vantorel {

/// The main face, in the page's coordinates.
struct MainFaceFrames {
    HostRect red, green, blue, snippet;
    HostRect colorName, rgbDecimal;
    // Set by the layout: what it has moved out of sight.
    bool componentsParked = false, snippetParked = false;
    bool colorNameParked = false, rgbDecimalParked = false;
};

struct MainFaceInput {
    MainFaceFrames current;
    HostRect reference;  ///< the colours view, or the settings view if it is shown
    HostRect colorsListPopUp;
    HostRect fullHex;
    double pageWidth = 0;
    double panelHeight = 0;  ///< the height of the whole panel
    bool showsCodeSnippet = false;
};

[[nodiscard]] MainFaceFrames mainFaceLayout(const MainFaceInput& input);

/// The settings face, in the settings view's coordinates.
struct SettingsFaceFrames {
    HostRect doneButton, poundSign, entryForm;
    HostRect componentDisplay, componentDisplayLabel;
    HostRect codeSnippet, codeSnippetLabel;
    HostRect dragType, dragTypeLabel;
    HostRect moreIndicator, help, versionLabel;
    // Set by the layout: what it has moved out of sight. The component display goes with the
    // snippet's row.
    bool codeSnippetParked = false, dragTypeParked = false, moreIndicatorParked = false;
};

/// Lays out the settings face. `bounds` is the settings view's bounds; sizes are taken from
/// `current`. Rows that do not fit above the done button are moved out of sight, and the "more"
/// indicator is shown.
[[nodiscard]] SettingsFaceFrames settingsFaceLayout(const SettingsFaceFrames& current,
                                                    HostRect bounds);

/// Returns how much wider and higher a page must become to be as large as `wanted`. No side is
/// negative.
[[nodiscard]] HostSize growthTo(HostSize wanted, HostSize page);

}  // namespace vantorel
