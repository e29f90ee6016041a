#pragma once

#include "host/HostColor.h"
#include "hosts/gimp/GimpHeaders.h"
#include "hosts/gtk/GtkReferences.h"

#include <functional>

/// The colour of a selector: all that differs between GIMP 2.10 and GIMP 3.
namespace vantorel {

/// Colours that sRGB does not have are clipped.
[[nodiscard]] HostColor colorOfSelector(GimpColorSelector* selector);

/// GIMP takes over the colour before this function returns.
void setColorOfSelector(GimpColorSelector* selector, const HostColor& color);

/// Calls `reaction` whenever GIMP has given the selector a colour.
void followColorOfSelector(GtkConnections& signals, GimpColorSelector* selector,
                           const std::function<void()>& reaction);

}  // namespace vantorel
