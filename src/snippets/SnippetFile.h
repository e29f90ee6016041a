#pragma once

#include "result/Message.h"
#include "snippets/QTXCodeSnippet.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The snippets of a file, and what is wrong in it.
struct SnippetFileReading {
    /// Each has a name of its own, a format and a variable form.
    std::vector<QTXCodeSnippet> snippets;
    /// The names of snippets of the program that the user has removed.
    std::vector<std::u16string> removed;
    std::vector<Message> problems;
};

/// Reads a file of snippets: a property list with an array of dictionaries in the form of
/// `QTXCodeSnippet::propertyListRepresentation`, or a dictionary that has such an array as its
/// CodeSnippets, like the settings file; such a dictionary may also have an array of names as its
/// RemovedSnippets. Entries with errors are reported and left out; the others
/// are read. `path` is for the messages.
[[nodiscard]] SnippetFileReading readSnippetFile(std::string_view utf8, const std::string& path);

/// Returns a file with these snippets and names of removed ones, in UTF-8.
[[nodiscard]] std::string snippetFileText(std::span<const QTXCodeSnippet> snippets,
                                          std::span<const std::u16string> removed = {});

}  // namespace vantorel
