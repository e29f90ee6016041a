#pragma once

#include <gtk/gtk.h>

namespace vantorel {

/// The child of a container that is a chooser of colours; null if there is none.
[[nodiscard]] GtkWidget* chooserIn(GtkWidget* container);

/// Puts a widget left of another, into a row of the two. Returns false, without any effect, if the
/// other is not in a box.
bool putBeside(GtkWidget* widget, GtkWidget* other);
/// Puts a widget at the end of a box. Returns false if it is not a box.
bool putBelow(GtkWidget* widget, GtkWidget* box);

/// By how much a window can grow beyond the size that its content needs until it fills its screen,
/// in pixels. Both may be negative.
[[nodiscard]] GtkRequisition spareRoomOf(GtkWidget* window);

}  // namespace vantorel
