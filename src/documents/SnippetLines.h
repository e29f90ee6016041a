#pragma once

#include "documents/DocumentColors.h"

#include <string_view>
#include <vector>

namespace vantorel {

/// What a snippet wrote, in a line of a document.
struct SnippetLine {
    TextRange range;
    HostColor color = HostColor::blackColor();
    std::uint16_t snippet = 0;
};

/// Returns what the snippets wrote in a line of UTF-8, from its beginning.
[[nodiscard]] std::vector<SnippetLine> snippetLinesIn(const SnippetReaders& snippets,
                                                      std::string_view text, TextRange line);

[[nodiscard]] DocumentColor colorOfSnippet(const SnippetLine& line);

}  // namespace vantorel
