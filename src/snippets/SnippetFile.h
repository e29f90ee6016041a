#pragma once

#include "result/Message.h"
#include "snippets/QTXCodeSnippet.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The snippets of a file, and what is wrong in it.
struct SnippetFileReading {
    /// Each has a name of its own, a format and a variable form.
    std::vector<QTXCodeSnippet> snippets;
    std::vector<Message> problems;
};

/// Reads a file of snippets: a property list with an array of dictionaries in the form of
/// `QTXCodeSnippet::propertyListRepresentation`, or a dictionary that has such an array as its
/// CodeSnippets, like the settings file. Entries with errors are reported and left out; the others
/// are read. `path` is for the messages.
[[nodiscard]] SnippetFileReading readSnippetFile(std::string_view utf8, const std::string& path);

}  // namespace vantorel
