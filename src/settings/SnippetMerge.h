#pragma once

#include "snippets/QTXCodeSnippet.h"

#include <string>
#include <vector>

/// Lists of snippets as the user edits them: those of the user's file, then those of the program.
/// The names of a list differ.
namespace vantorel {

using SnippetList = std::vector<QTXCodeSnippet>;

/// Applies to `theirs` what leads from `base` to `mine`. Where both have changed a snippet, mine
/// counts; a snippet that only one side has removed is kept if the other has changed it.
[[nodiscard]] SnippetList mergedSnippets(const SnippetList& base, const SnippetList& mine,
                                         const SnippetList& theirs);

/// What the user's file must contain.
struct SnippetFileContents {
    SnippetList own;
    /// The names of the program's snippets that are left out.
    std::vector<std::u16string> removed;
};

/// Returns the list that a user's file and the program's snippets make.
[[nodiscard]] SnippetList snippetsOfFile(const SnippetFileContents& file,
                                         const SnippetList& shipped);

/// Returns the file for a list. Snippets of the program at its end that are as they ship, in their
/// order, are left out, so that they follow the program.
[[nodiscard]] SnippetFileContents snippetFileFor(const SnippetList& snippets,
                                                 const SnippetList& shipped);

/// Returns the list with all of the program's snippets as they ship. The user's stay.
[[nodiscard]] SnippetList withShippedRestored(const SnippetList& snippets,
                                              const SnippetList& shipped);

/// Returns the list with the snippets of another at its end. Those that it has already are left
/// out; another snippet of the same name gets a number.
[[nodiscard]] SnippetList withImported(const SnippetList& snippets, const SnippetList& imported,
                                       const std::vector<std::u16string>& taken);

/// Returns the name, or the name with the first number that makes it another one than those of the
/// list and of `taken`.
[[nodiscard]] std::u16string freeSnippetName(const std::u16string& name,
                                             const SnippetList& snippets,
                                             const std::vector<std::u16string>& taken);

}  // namespace vantorel
