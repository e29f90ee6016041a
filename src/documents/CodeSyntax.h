#pragma once

#include "documents/DocumentLanguage.h"

#include <cstddef>
#include <string_view>

namespace vantorel {

/// How comments and strings of a language are written.
struct CodeSyntax {
    DocumentLanguage language;
    /// Whether three quotation marks begin a string of several lines.
    bool hasTripleQuotes;
    std::string_view lineComment;
    std::string_view commentBegin;
    std::string_view commentEnd;
    /// The quotation marks of strings.
    std::string_view quotes;
};

/// Returns the end of "${...}" in a template string of JavaScript, whose strings may contain
/// braces. `place` is after the "{". Returns `end` if it is not closed.
[[nodiscard]] std::size_t endOfTemplateHole(std::string_view text, std::size_t place,
                                            std::size_t end);

/// Returns the syntax of a language of code, or that of plain text.
[[nodiscard]] const CodeSyntax& codeSyntax(DocumentLanguage language);

}  // namespace vantorel
