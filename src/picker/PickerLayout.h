#pragma once

#include "host/HostGeometry.h"

/// Where the controls of the picker go, as plain functions of frames: nothing here knows a control.
/// Every y points up. What must disappear is moved far out of sight.
namespace vantorel {

/// The main face, in the page's coordinates.
struct MainFaceFrames {
    HostRect red, green, blue, snippet;
    HostRect colorName, rgbDecimal;
};

struct MainFaceInput {
    MainFaceFrames current;
    HostRect reference;  ///< the colours view, or the settings view's place where that is shown
    HostRect colorsListPopUp;
    HostRect fullHex;
    HostSize panel;  ///< of the panel's whole frame
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
};

/// `bounds` is the view's bounds; sizes are taken from `current`. Rows that do not fit above the
/// done button go out of sight, and the "more" indicator comes in.
[[nodiscard]] SettingsFaceFrames settingsFaceLayout(const SettingsFaceFrames& current,
                                                    HostRect bounds);

/// `panel` grown by what `page` lacks of `wanted`, its top edge in place.
[[nodiscard]] HostRect panelFrameGrownFor(HostRect panel, HostSize page, HostSize wanted);

}  // namespace vantorel
