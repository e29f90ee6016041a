#pragma once

#include "commandline/CommandTable.h"
#include "result/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

/// The parsed arguments of a command line.
struct GivenArguments {
    /// The names after the program's, such as "list export"; empty for a program without commands.
    std::string command;
    /// The operands, in the order of the command line.
    std::vector<std::string> operands;
    /// The options with their values, in the order of the command line. A flag has an empty value.
    std::vector<std::pair<std::string_view, std::string>> options;

    [[nodiscard]] bool has(std::string_view option) const;
    /// Returns the first value of an option; `std::nullopt` if it was not given.
    [[nodiscard]] std::optional<std::string> value(std::string_view option) const;
    [[nodiscard]] std::vector<std::string> values(std::string_view option) const;
};

/// The parsed arguments, or a text to print instead of running a command.
struct ArgumentReading {
    std::optional<GivenArguments> arguments;
    /// The help text or the version; empty if `arguments` is set.
    std::string text;
};

/// Parses the arguments after the program's name. The value of an option is the text after "=", or
/// the whole next argument, even if that starts with "-". Every argument after "--" is an operand,
/// and so are "-" and a negative number.
[[nodiscard]] Result<ArgumentReading> readArguments(const ProgramRow& program,
                                                    const std::vector<std::string>& arguments);

}  // namespace vantorel
