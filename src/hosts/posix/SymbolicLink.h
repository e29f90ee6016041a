#pragma once

#include <optional>
#include <string>

namespace vantorel {

/// Returns the target of a symbolic link as it was given; `std::nullopt` if there is no link.
[[nodiscard]] std::optional<std::string> targetOfLink(const std::string& path);

/// Creates a symbolic link, or changes the target of an existing one. Anything else at the path is
/// left alone, and is an error. Returns 0 or an `errno`.
[[nodiscard]] int writeLink(const std::string& path, const std::string& target);

}  // namespace vantorel
