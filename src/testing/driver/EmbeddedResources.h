#pragma once

#include <map>
#include <string>

namespace vantorel {

/// The picker's resources by name, as they were when the program was built.
[[nodiscard]] const std::map<std::string, std::string>& embeddedResources();

}  // namespace vantorel
