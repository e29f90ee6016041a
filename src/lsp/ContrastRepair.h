#pragma once

#include "lsp/WrittenColors.h"

#include <optional>
#include <string>

namespace vantorel {

/// A text colour that can be read on the background of its rule.
struct ContrastRepair {
    /// The value of `color`.
    TextRange range;
    std::string text;
    double ratio = 0;
};

/// Returns a better colour for the text of the rule around a place, if the rule has opaque values
/// of `color` and `background` or `background-color` whose contrast is below 4.5, the limit of
/// WCAG 2.2 for level AA. Hue and chroma are kept, and the lightness in OkLCh changes as little as
/// possible.
[[nodiscard]] std::optional<ContrastRepair> contrastRepair(const OpenDocument& document,
                                                           std::size_t place,
                                                           const WrittenColors& writer);

}  // namespace vantorel
