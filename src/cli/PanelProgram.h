#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// Replaces this process by `vantorel-panel` with the given arguments, so that its output and exit
/// status go to the caller. The program is searched for in this program's folder, then in PATH.
/// Does not return. Throws a `Failure` if the program is missing or cannot be run.
[[noreturn]] void becomePanel(const std::vector<std::string>& arguments);

/// Starts `vantorel-panel` with the given arguments as a child. Returns its process and the
/// descriptor of its standard output; `std::nullopt` if the program is missing or cannot be run.
struct PanelProcess {
    int process = 0;
    int output = -1;
};
[[nodiscard]] std::optional<PanelProcess> startPanelProgram(
    const std::vector<std::string>& arguments);

}  // namespace vantorel
