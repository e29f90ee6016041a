#pragma once

#include "host/HostInterfaceFactory.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The interface file: a text property list that describes every control of the picker, for every
/// desktop.
///
///     {
///         Version = 1;
///         Views = (
///             {
///                 Name = "_hexPickerView"; Class = View; Frame = "{{0, 0}, {260, 300}}";
///                 Subviews = (
///                     {
///                         Name = "_redHexText"; Class = TextField;
///                         Frame = "{{20, 40}, {60, 20}}";
///                         Resizing = (RightMargin, TopMargin);
///                         Action = redHexAction; ToolTip = "Red"; AccessibleName = "Red";
///                     }
///                 );
///             }
///         );
///     }
///
/// A view without `Subviews` above it stands alone, out of any hierarchy. Frames are `{{x, y},
/// {width, height}}` in points, y up, in the superview. `Class` is one of View, Label, TextField,
/// PopUpButton, Button, CheckBox, ToggleButton, or a class of the picker's own: QTXHexColorsView,
/// QTXHexSettingsView, QTXHexEnterTextField, QTXRGBDecimalEnterTextField. Further keys: `Title`,
/// `Image` (a resource `NAME.svg`), `FontSize` (points), `Alignment` (Left, Center, Right),
/// `Monospaced` (YES).
namespace vantorel {

struct InterfaceItem {
    enum class Kind {
        view,
        textField,
        hexEnterTextField,
        rgbDecimalEnterTextField,
        popUpButton,
        button,
        colorsView,
        settingsView,
    };

    Kind kind = Kind::view;
    HostControlDescription description;
    /// The name of the action that the control sends; empty for none.
    std::string action;
    /// The name of the picture; empty for none.
    std::string image;
    std::vector<InterfaceItem> subviews;
};

/// The items that stand in no other. Nothing when the text is no interface file: not a property
/// list, another version, an unknown class, a frame that cannot be read, a name twice.
[[nodiscard]] std::optional<std::vector<InterfaceItem>> parseInterfaceFile(std::string_view utf8);

}  // namespace vantorel
