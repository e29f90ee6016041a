#pragma once

#include "commandline/CommandTable.h"

#include <string>

/// What is written from the table of a program.
namespace vantorel {

/// What --help prints; `names` is the command's name with those before it: "vantorel list import".
[[nodiscard]] std::string helpText(const CommandRow& command, const std::string& names);

/// The manual page in the macros of man. It has no date, so that a build can be repeated to the
/// byte.
[[nodiscard]] std::string manualPage(const ProgramRow& program);

/// A completion script for "bash", "zsh" or "fish".
[[nodiscard]] std::string completionScript(const ProgramRow& program, std::string_view shell);

}  // namespace vantorel
