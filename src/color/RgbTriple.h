#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorel {

/// What a text says as an `rgb(...)` triple.
struct RgbTripleReading {
    /// Whether "rgb(" stands anywhere in the text, in any letter case.
    bool found = false;
    /// The three numbers, each 0..255; empty when what follows "rgb(" is no triple.
    std::optional<std::array<std::uint64_t, 3>> components;
};

/// Reads the three numbers after the first "rgb(" of a text. They are decimal, of at most three
/// digits, parted by blanks or commas. A missing ")" is forgiven, and so is all that follows the
/// third number.
[[nodiscard]] RgbTripleReading readRgbTriple(std::u16string_view text);

}  // namespace vantorel
