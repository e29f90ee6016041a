#pragma once

#include "result/Message.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Tables that describe a program's command line. Arguments are parsed with them, and the help
/// texts, the manual page and the completion scripts are generated from them. Their texts are
/// literals; tools/update-translations finds those that end in a full stop.
namespace vantorel {

/// A value that an option or operand accepts.
struct Choice {
    std::string_view value;
    /// Explains the value, and follows it in parentheses; may be empty.
    std::string_view text;
};
using Choices = std::vector<Choice> (*)();

struct OptionRow {
    /// The option as it is typed, such as "--list".
    std::string_view name;
    /// The placeholder of the option's value, such as "NAME"; empty for a flag. For "FILE",
    /// completions offer file names.
    std::string_view value = {};
    /// The help text; empty if the choices are explanation enough.
    std::string_view text = {};
    bool isRequired = false;
    bool isRepeatable = false;
    /// The accepted values; null if any value is accepted.
    Choices choices = nullptr;
    /// An option that cannot be combined with this one; empty for none.
    std::string_view excludes = {};
    /// The arguments with which the program prints the values there are, one per line, for
    /// completions: "lists --names". Empty if it cannot.
    std::string_view valuesFrom = {};
    /// A second name, such as "-n"; empty for none.
    std::string_view shortName = {};
};

/// Arguments that do not belong to an option.
struct OperandRow {
    /// The placeholder, as in `OptionRow::value`.
    std::string_view value;
    std::string_view text;
    std::size_t fewest = 0;
    /// 0 allows any number.
    std::size_t most = 0;
    Choices choices = nullptr;
    /// As in `OptionRow`.
    std::string_view valuesFrom = {};
};

struct CommandRow {
    std::string_view name;
    /// A summary of one line. Further paragraphs may follow, separated by line feeds.
    std::string_view text = {};
    std::span<const OperandRow> operands = {};
    /// The options other than "-h" and "--help", which every command has.
    std::span<const OptionRow> options = {};
    std::span<const CommandRow> commands = {};
    /// The program that reads the arguments that follow; null if this one does. All of them are
    /// then operands, including "--help" and "--".
    const CommandRow* handsOnTo = nullptr;

    /// Whether the command can only be used with one of its subcommands.
    [[nodiscard]] bool needsCommand() const { return !commands.empty() && operands.empty(); }
};

/// A term of the manual page, such as an exit status or a file, and its explanation.
struct TermRow {
    std::string_view term;
    std::string_view text;
};

/// A section of the manual page after the commands. Its parts follow each other in this order.
struct SectionRow {
    PhraseText<> title;
    std::span<const TermRow> terms = {};
    /// A paragraph; may be empty.
    std::string_view text = {};
    /// Lines that are printed unchanged, for examples.
    std::span<const std::string_view> lines = {};
};

struct ProgramRow {
    /// The program itself. Its options include "--version".
    CommandRow command;
    /// Follows the name in the manual page: "colours for people who write CSS and code".
    PhraseText<> subject;
    std::string_view version;
    std::span<const SectionRow> sections = {};
    /// The program whose manual page this one refers to.
    std::string_view seeAlso = {};
};

/// The option "-h" or "--help", for generators of texts about options.
inline constexpr OptionRow helpOption{
    .name = "--help", .text = "Show this help.", .shortName = "-h"};

/// Splits a text at its line feeds.
[[nodiscard]] std::vector<std::string_view> paragraphsOf(std::string_view text);

/// Returns an option as help texts show it, such as "--list NAME" or "-h, --help".
[[nodiscard]] std::string formOf(const OptionRow& option);
/// Returns an operand as help texts show it, such as "COLOR..." or "COLOR".
[[nodiscard]] std::string formOf(const OperandRow& operand);

/// Returns the text that explains an option, or its choices with their explanations if it has none.
[[nodiscard]] Phrase explanationOf(const OptionRow& option);

/// Returns the usage of a command, beginning with its name: "show [OPTION...] [COLOR...]".
[[nodiscard]] std::string usageOf(const CommandRow& command);

/// Lists choices as in a sentence: "bash, zsh or fish". With `explains`, their texts follow in
/// parentheses.
[[nodiscard]] Phrase sentenceOf(Choices choices, bool explains = false);

/// Returns a text of a table as a phrase, so that it can be translated.
[[nodiscard]] inline Phrase phraseOf(std::string_view text)
{
    return {text.empty() ? "" : text.data(), {}};
}

}  // namespace vantorel
