#pragma once

#include <map>
#include <string>

namespace vantorel {

/// Returns the picker's resources, compiled in, by file name.
[[nodiscard]] const std::map<std::string, std::string>& embeddedResources();

}  // namespace vantorel
