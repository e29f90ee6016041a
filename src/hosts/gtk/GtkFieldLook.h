#pragma once

#include "hosts/gtk/GtkStyles.h"

namespace vantorel {

/// The look of a text field: a font in which the text fits while nobody edits it, and a text colour
/// that stays readable when the theme changes.
class GtkFieldLook {
public:
    GtkFieldLook(GtkWidget* field, const HostControlDescription& description);

    void setTextColor(const HostColor& color);
    /// Chooses the font size for a field of a width in points. It does not change while the user
    /// types.
    void fit(double width);

private:
    void showColor();

    GtkWeakWidget _field;
    GtkControlStyle _style;
    HostColor _color = HostColor::blackColor();
    GtkDeferral _colorReaction;
    GtkConnections _signals;
};

}  // namespace vantorel
