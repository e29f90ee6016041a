#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

enum class Command {
    show,
    name,
    lists,
    list,
    listImport,
    listExport,
    listPublish,
    snippets,
    contrast,
    wheel,
    palette,
    pick,
    choose,
    panel,
    completions,
    manpage,
};

/// What the user asks for. Texts are as they were given; what is not given is empty.
struct CommandLine {
    Command command = Command::show;
    /// Colours, files, names, in their order.
    std::vector<std::string> operands;
    std::optional<std::string> listName;
    std::optional<std::string> snippetName;
    std::optional<std::string> newName;
    std::optional<std::string> format;
    std::optional<std::string> output;
    std::optional<std::string> svg;
    std::optional<std::string> png;
    std::optional<std::string> size;
    std::optional<std::string> rings;
    std::optional<bool> lowercase;
    std::optional<bool> poundSign;
    bool json = false;
    bool yes = false;
    bool undo = false;
    bool copy = false;
};

/// A command line, or what is to be printed in its place (--help, --version).
struct CommandLineReading {
    std::optional<CommandLine> commandLine;
    std::string text;
};

/// Arguments that are no command line are a `Failure`. `arguments` are those
/// behind the program's name.
[[nodiscard]] CommandLineReading readCommandLine(const std::vector<std::string>& arguments);

}  // namespace vantorel
