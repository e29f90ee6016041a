#pragma once

#include "cli/ColorForm.h"
#include "cli/ColorStream.h"
#include "cli/Commands.h"

#include <functional>
#include <string>
#include <vector>

namespace vantorel {

/// Returns the arguments after the first `count`.
[[nodiscard]] std::vector<std::string> operandsAfter(std::size_t count,
                                                     const CommandLine& commandLine);

/// Returns the first argument as a colour. Throws a `Failure` if it is not one.
[[nodiscard]] CSSColorValue requiredFirstColor(const CommandLine& commandLine,
                                               ColorTextReader& reader);

using Computation = std::function<std::vector<CSSColorValue>(const CSSColorValue&)>;

/// Reads the colours and writes the results of each before reading the next. Returns the exit
/// status.
[[nodiscard]] int computeColors(Session& session, const CommandLine& commandLine,
                                ColorTextReader& reader, const std::vector<std::string>& operands,
                                const Computation& computation);

/// Reads all colours. Returns false if any text is not a colour.
[[nodiscard]] bool collectColors(Session& session, ColorTextReader& reader,
                                 const std::vector<std::string>& operands,
                                 std::vector<CSSColor>& colors);

}  // namespace vantorel
