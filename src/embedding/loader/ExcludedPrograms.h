#pragma once

namespace vantorel {

/// Whether this program keeps its colour dialogs as they are: our own panel, and the programs that
/// the user names in `Vantorel/programs-without-page` of `$XDG_CONFIG_HOME` (`~/.config`). A line
/// of that file is the name of a program's file without its folder; for a program in an interpreted
/// language also that of its script. Lines that begin with "#" are comments.
[[nodiscard]] bool isExcludedProgram() noexcept;

/// Whether a list of that form contains a name. `list` has `length` bytes.
[[nodiscard]] bool listHasProgram(const char* list, unsigned long length,
                                  const char* name) noexcept;

}  // namespace vantorel
