#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a program's command line takes, as tables: arguments are read by them, and help, manual
/// page and completions are written from them.
namespace vantorel {

/// One of the values that an option or operand can have.
struct Choice {
    std::string_view value;
    /// Explains the value, in parentheses behind it; may be empty.
    std::string_view text;
};
using Choices = std::vector<Choice> (*)();

struct OptionRow {
    /// "--list"
    std::string_view name;
    /// What follows it, such as "NAME"; empty for a flag. "FILE" is completed by the names of
    /// files.
    std::string_view value = {};
    /// Empty where the choices explain themselves.
    std::string_view text = {};
    bool isRequired = false;
    bool isRepeatable = false;
    /// The only values that can follow; null for any.
    Choices choices = nullptr;
    /// Another option that cannot be given beside it; empty for none.
    std::string_view excludes = {};
};

/// Arguments that are given without an option.
struct OperandRow {
    /// As `OptionRow::value`.
    std::string_view value;
    std::string_view text;
    std::size_t fewest = 0;
    /// 0 is any number.
    std::size_t most = 0;
    Choices choices = nullptr;
};

struct CommandRow {
    std::string_view name;
    /// A line, and behind it, parted by line feeds, further paragraphs.
    std::string_view text = {};
    std::span<const OperandRow> operands = {};
    /// Besides "-h" and "--help", which each command has.
    std::span<const OptionRow> options = {};
    std::span<const CommandRow> commands = {};
    /// Whatever follows is an operand, "--help" and "--" too: another program reads it.
    bool handsOn = false;

    /// The first line of the text.
    [[nodiscard]] std::string_view summary() const { return text.substr(0, text.find('\n')); }
    /// Whether the command does nothing without one of its own commands.
    [[nodiscard]] bool needsCommand() const { return !commands.empty() && operands.empty(); }
};

struct ProgramRow {
    /// Its options include "--version".
    CommandRow command;
    /// Behind the name in the manual page: "colours for people who write CSS and code".
    std::string_view subject = {};
    std::string_view version;
    /// The sections of the manual page that follow the commands, in the macros of man.
    std::string_view furtherSections = {};
};

/// "-h" and "--help", for those who write about options.
inline constexpr OptionRow helpOption{"--help", {}, "Show this help."};

/// The texts between the line feeds of a text.
[[nodiscard]] std::vector<std::string_view> paragraphsOf(std::string_view text);

/// "--list NAME" or "-h, --help".
[[nodiscard]] std::string formOf(const OptionRow& option);
/// "COLOR..." or "COLOR".
[[nodiscard]] std::string formOf(const OperandRow& operand);

/// What is explained of an option: its text, or its choices with theirs.
[[nodiscard]] std::string explanationOf(const OptionRow& option);

/// How a command is called, from its own name on: "show [OPTION...] [COLOR...]".
[[nodiscard]] std::string usageOf(const CommandRow& command);

/// Values in a sentence: "bash, zsh or fish".
[[nodiscard]] std::string sentenceOf(const std::vector<std::string>& values);

}  // namespace vantorel
