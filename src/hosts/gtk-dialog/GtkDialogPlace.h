#pragma once

#include <gtk/gtk.h>

namespace vantorel {

/// Puts a widget beside the controls of a colour dialog, or below what a program has made of them.
/// Returns false if the dialog's content is not laid out as expected.
bool putBesideControls(GtkWidget* widget, GtkDialog* dialog);

/// By how much a window can grow beyond the size that its content needs until it fills its screen,
/// in pixels. Both may be negative.
[[nodiscard]] GtkRequisition spareRoomOf(GtkWidget* window);

}  // namespace vantorel
