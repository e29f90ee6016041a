#pragma once

#include <gtk/gtk.h>

namespace vantorel {

/// Puts a widget beside the controls of a colour dialog, or below what a program has made of them.
/// Returns false if the dialog's content is not laid out as expected.
bool putBesideControls(GtkWidget* widget, GtkDialog* dialog);

}  // namespace vantorel
