#pragma once

#include "commandline/ArgumentReader.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The arguments of a command. Texts are not yet interpreted.
struct CommandLine {
    explicit CommandLine(GivenArguments given);

    /// Colours, files or names, in the order of the command line.
    std::vector<std::string> operands;
    std::optional<std::string> listName;
    std::optional<std::string> snippetName;
    std::optional<std::string> newName;
    std::optional<std::string> format;
    std::optional<std::string> form;
    std::optional<std::string> output;
    std::optional<std::string> svg;
    std::optional<std::string> png;
    std::optional<std::string> size;
    std::optional<std::string> rings;
    std::optional<std::string> theme;
    std::optional<std::string> space;
    std::optional<std::string> hueArc;
    std::optional<std::string> fraction;
    std::optional<std::string> number;
    std::optional<std::string> kind;
    std::optional<std::string> sortedBy;
    std::optional<std::string> failOn;
    std::optional<bool> lowercase;
    std::optional<bool> poundSign;
    bool reversed = false;
    bool json = false;
    bool names = false;
    bool yes = false;
    bool undo = false;
    bool copy = false;
    bool panel = false;
    bool on = false;
    bool off = false;
};

}  // namespace vantorel
