#pragma once

#include "commandline/ArgumentReader.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// What the user asks of a command. Texts are as they were given.
struct CommandLine {
    explicit CommandLine(GivenArguments given);

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
    bool panel = false;
};

}  // namespace vantorel
