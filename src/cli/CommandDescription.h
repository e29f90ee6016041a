#pragma once

#include <string>
#include <vector>

namespace vantorel {

/// An option, or what stands without one.
struct OptionDescription {
    /// "--list" or "-h"; empty for what stands without an option.
    std::vector<std::string> names;
    /// What follows it, such as "NAME"; empty for a flag.
    std::string value;
    std::string text;
    bool isRequired = false;
    bool isRepeatable = false;
    /// The only values that can follow; empty where they are not counted.
    std::vector<std::string> choices;

    [[nodiscard]] bool isOperand() const { return names.empty(); }
    [[nodiscard]] bool takesFile() const { return value == "FILE"; }
};

/// A command with its options and its own commands, as help, manual page and completions tell it.
struct CommandDescription {
    /// As it is typed: "list" has the command "import".
    std::string name;
    /// A line, and behind it, parted by line feeds, further paragraphs.
    std::string text;
    std::vector<OptionDescription> options;
    std::vector<CommandDescription> commands;

    /// The first line of the text.
    [[nodiscard]] std::string summary() const { return text.substr(0, text.find('\n')); }
    /// The paragraphs of the text.
    [[nodiscard]] std::vector<std::string> paragraphs() const;
};

/// All commands of the program.
[[nodiscard]] CommandDescription describeProgram();

/// How a command is called, without the names before its own: "show [OPTION...] [COLOR...]".
[[nodiscard]] std::string usageOf(const CommandDescription& command);
/// "-h, --help" or "--list NAME" or "COLOR...".
[[nodiscard]] std::string formOf(const OptionDescription& option);

/// What --help prints; `names` is the command's name with those before it: "vantorel list import".
[[nodiscard]] std::string helpText(const CommandDescription& command, const std::string& names);

/// The manual page in the macros of man.
[[nodiscard]] std::string manualPage(const CommandDescription& program);

/// A completion script for "bash", "zsh" or "fish".
[[nodiscard]] std::string completionScript(const CommandDescription& program,
                                           const std::string& shell);

}  // namespace vantorel
