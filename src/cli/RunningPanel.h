#pragma once

#include "cli/Output.h"

#include <optional>
#include <string>
#include <vector>

/// What the panel that is running can do at once. Starting the panel's program takes longer than
/// these calls, because it starts Qt before it finds the running one.
namespace vantorel {

/// Shows the running panel, if the arguments of the panel's program are none but a colour. Returns
/// false if that program has to be started.
[[nodiscard]] bool showRunningPanel(const std::vector<std::string>& arguments);

/// Picks with the running panel, prints the colour, and copies it if `copies` is true. Returns the
/// exit status, or `std::nullopt` if the panel's program has to be started.
[[nodiscard]] std::optional<int> pickWithRunningPanel(Output& output, bool copies);

}  // namespace vantorel
