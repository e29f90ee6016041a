#pragma once

#include "commandline/CommandTable.h"

#include <string>

/// Texts that are generated from the table of a program, in the user's language.
namespace vantorel {

/// Returns the first line of a command's text.
[[nodiscard]] std::string summaryOf(const CommandRow& command);

/// Returns the text that --help prints. `names` is the full name of the command, such as
/// "vantorel list import".
[[nodiscard]] std::string helpText(const CommandRow& command, const std::string& names);

/// Returns the manual page, written in man macros. It has no date, so that builds are reproducible.
[[nodiscard]] std::string manualPage(const ProgramRow& program);

/// Returns a completion script. `shell` must be "bash", "zsh" or "fish".
[[nodiscard]] std::string completionScript(const ProgramRow& program, std::string_view shell);

}  // namespace vantorel
