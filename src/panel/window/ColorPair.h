#pragma once

#include "host/HostColor.h"
#include "panel/widgets/EditedColor.h"

namespace vantorel {

/// The panel's two colours.
struct ColorPair {
    HostColor color;
    /// What the contrast of the colour is measured against.
    HostColor background = HostColor::whiteColor();

    [[nodiscard]] const HostColor& of(EditedColor which) const
    {
        return which == EditedColor::color ? color : background;
    }
    [[nodiscard]] ColorPair with(EditedColor which, const HostColor& value) const
    {
        return which == EditedColor::color ? ColorPair{value, background} : ColorPair{color, value};
    }

    bool operator==(const ColorPair&) const = default;
};

}  // namespace vantorel
