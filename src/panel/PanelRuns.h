#pragma once

#include "panel/Panel.h"

/// Ways to run a panel that is separate from the desktop's. Each returns the exit status.
namespace vantorel {

/// Writes a picture of the window to the file that the options name.
[[nodiscard]] int takePicture(Panel& panel, const PanelOptions& options);

/// Lets the user choose one colour and prints it.
[[nodiscard]] int letUserChoose(Panel& panel, const PanelOptions& options);

}  // namespace vantorel
