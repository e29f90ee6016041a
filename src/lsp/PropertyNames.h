#pragma once

#include "lsp/OpenDocument.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// A custom property that is to hold a colour of a style sheet.
struct NamedProperty {
    /// With its "--".
    std::string name;
    /// The text to insert, which defines it.
    std::string declaration;
    std::size_t place = 0;
};

/// Returns a custom property for a colour: in the first `:root` rule of the style sheet, or in a
/// new one at its beginning. The name is made from `proposal` and is new in the document. Returns
/// `std::nullopt` in other languages, and for a colour that is the value of a variable already.
[[nodiscard]] std::optional<NamedProperty> namedProperty(const OpenDocument& document,
                                                         const OpenDocument::Found& color,
                                                         std::string_view proposal);

}  // namespace vantorel
