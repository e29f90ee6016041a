#pragma once

#include "documents/DocumentColors.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantorel {

/// What a scan found between two places at which the scanner needs no memory of what precedes. All
/// ranges are relative to the part. A part that is scanned again gives the same, whatever changed
/// elsewhere in the document.
struct DocumentPart {
    struct Definition {
        std::uint32_t declaration = 0;
        /// Whether it counts only without an earlier one (`!default` of SCSS).
        bool isDefault = false;
    };

    std::size_t length = 0;
    /// Those that use variables are patterns until they are resolved.
    std::vector<DocumentColor> colors;
    std::vector<DocumentBlock> blocks;
    std::vector<DocumentDeclaration> declarations;
    /// The declarations of variables, in order.
    std::vector<Definition> definitions;
    bool usesVariables = false;
};

/// Scans a text from its beginning. The part ends with the text, or at the first suitable place at
/// or after `leastLength`. `snippets` can be null.
[[nodiscard]] DocumentPart scanPart(std::string_view text, DocumentLanguage language,
                                    const SnippetReaders* snippets, std::size_t leastLength);

}  // namespace vantorel
