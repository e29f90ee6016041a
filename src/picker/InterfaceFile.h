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
/// Top-level views have no superview. Frames are `{{x, y}, {width, height}}` in points, y up, in
/// the superview's coordinates. `Class` is one of View, Label, TextField, PopUpButton, Button,
/// CheckBox, ToggleButton, or one of the picker's own classes: QTXHexColorsView,
/// QTXHexSettingsView, QTXHexEnterTextField, QTXRGBDecimalEnterTextField. Further keys: `Title`,
/// `Image` (a resource `NAME.svg`), `FontSize` (points), `Alignment` (Left, Center, Right),
/// `Monospaced` (YES), `ReadOnly` (YES).
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
    /// The name of the control's action; empty if it has none.
    std::string action;
    /// The name of the control's picture; empty if it has none.
    std::string image;
    std::vector<InterfaceItem> subviews;
};

/// Parses an interface file and returns its top-level items. Returns `std::nullopt` if the file is
/// not valid: not a property list, an unsupported version, an unknown class, an unreadable frame,
/// or a duplicate name.
[[nodiscard]] std::optional<std::vector<InterfaceItem>> parseInterfaceFile(std::string_view utf8);

}  // namespace vantorel
