#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorel {

/// The result of reading a text as an `rgb(...)` triple.
struct RgbTripleReading {
    /// Whether the text contains "rgb(", in any letter case.
    bool found = false;
    /// The three numbers, each 0..255; `std::nullopt` if no valid triple follows "rgb(".
    std::optional<std::array<std::uint64_t, 3>> components;
};

/// Reads the three numbers after the first "rgb(" of a text. They are decimal, have at most three
/// digits and are separated by spaces or commas. The ")" is optional, and everything after the
/// third number is ignored.
[[nodiscard]] RgbTripleReading readRgbTriple(std::u16string_view text);

}  // namespace vantorel
