#pragma once

#include "color/QTXHexColorSpec.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The names of a palette that match a colour.
struct PaletteNameMatch {
    std::optional<std::u16string> exact;
    /// In the order of the palette; empty if there is an exact name.
    std::vector<std::u16string> close;
};

/// Finds the names of one colour in the bytes of a palette file, in a third of the time in which a
/// list is made of them. The result is that of `matchColorName` with the list of `readPalette`.
/// Returns `std::nullopt` for files whose list does not have the names as they are: with repeated
/// or missing names, skipped lines, lines that end in CR, or texts that are not UTF-8.
[[nodiscard]] std::optional<PaletteNameMatch> namesInPalette(std::string_view bytes,
                                                             const QTXHexColorSpec& color);

}  // namespace vantorel
