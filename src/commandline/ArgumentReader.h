#pragma once

#include "commandline/CommandTable.h"
#include "result/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

/// What was given on a command line.
struct GivenArguments {
    /// Behind the program's name: "list export"; empty for a program without commands.
    std::string command;
    /// In their order.
    std::vector<std::string> operands;
    /// Names of options with their values, in their order. A flag has an empty value.
    std::vector<std::pair<std::string_view, std::string>> options;

    [[nodiscard]] bool has(std::string_view option) const;
    /// `std::nullopt` for an option that was not given.
    [[nodiscard]] std::optional<std::string> value(std::string_view option) const;
    [[nodiscard]] std::vector<std::string> values(std::string_view option) const;
};

/// Arguments, or a text to print in their place.
struct ArgumentReading {
    std::optional<GivenArguments> arguments;
    /// The answer to --help or --version.
    std::string text;
};

/// Reads the arguments that follow a program's name. An option that takes a value takes the next
/// argument, whatever it is, or what follows a "=". What follows "--" are operands; "-" is one,
/// too.
[[nodiscard]] Result<ArgumentReading> readArguments(const ProgramRow& program,
                                                    const std::vector<std::string>& arguments);

}  // namespace vantorel
