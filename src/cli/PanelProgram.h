#pragma once

#include <string>
#include <vector>

namespace vantorel {

/// Goes on as the program `vantorel-panel` with these arguments, so that its output and its exit
/// status are the caller's. It is looked for beside this program, then in PATH; where it is
/// missing, or cannot be run, that is a `Failure`. Does not return.
[[noreturn]] void becomePanel(const std::vector<std::string>& arguments);

}  // namespace vantorel
