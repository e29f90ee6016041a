#pragma once

#include <string>
#include <string_view>

/// Entries of ours in texts that others edit, too. All that others have written stays as it is.
namespace vantorel {

/// Adds a module to the key "gtk-modules" in GTK's settings (settings.ini), unless it is there.
[[nodiscard]] std::string withGtkModule(std::string_view settings, std::string_view module);
[[nodiscard]] std::string withoutGtkModule(std::string_view settings, std::string_view module);
[[nodiscard]] bool hasGtkModule(std::string_view settings, std::string_view module);

/// Puts lines at the end of a shell script, between two comments with `title`. Lines that are
/// already there under that title are replaced.
[[nodiscard]] std::string withMarkedLines(std::string_view script, std::string_view title,
                                          std::string_view lines);
[[nodiscard]] std::string withoutMarkedLines(std::string_view script, std::string_view title);

}  // namespace vantorel
