#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

/// Archives in the ZIP format, as far as palettes need them.
namespace vantorel {

/// Returns an archive of files, in their order and without compression. Names and contents
/// together must be smaller than 4 GiB.
[[nodiscard]] std::string zipArchive(std::span<const std::pair<std::string, std::string>> files);

/// Returns the contents of a file in an archive, stored or deflated; `std::nullopt` if there is
/// none, if the archive is damaged or encrypted, or if the contents are larger than `mostBytes`.
[[nodiscard]] std::optional<std::string> fileInZip(std::string_view archive, std::string_view name,
                                                   std::size_t mostBytes);

}  // namespace vantorel
