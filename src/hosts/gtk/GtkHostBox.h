#pragma once

#include "hosts/common/PixelFrames.h"
#include "hosts/gtk/GtkVersions.h"

#include <functional>

/// A container that gives each child exactly the room that was set for it. GTK's own containers
/// give a child at least what its theme asks for, which for a field or a button can be half as much
/// again as a page has.
namespace vantorel {

/// A new container asks for no room of its own; set the least size with
/// gtk_widget_set_size_request. `clips`: nothing of its children is seen outside it.
[[nodiscard]] GtkWidget* newHostBox(bool clips);

/// Calls `reaction` with each new size, before the children get their places.
void setHostBoxReaction(GtkWidget* box, std::function<void(int width, int height)> reaction);

/// Sets the place of a child in its box, relative to the box. A child without a place fills its
/// box.
void placeInHostBox(GtkWidget* child, const PixelRect& place);

/// The place that was set, or null.
[[nodiscard]] const PixelRect* placeInHostBox(GtkWidget* child);

}  // namespace vantorel
