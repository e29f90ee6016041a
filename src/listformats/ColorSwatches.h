#pragma once

#include "listformats/ListContents.h"

#include "host/HostColorList.h"

#include <optional>
#include <string>
#include <string_view>

/// Colour swatch files (.aco) of picture editors: colours of 16 bits per component in a first part
/// without names and a second one with names, all numbers with the most significant byte first.
namespace vantorel {

/// The largest number of colours in a file, which counts them in 16 bits.
inline constexpr std::size_t mostColorSwatches = 0xFFFF;

/// Returns a file with both parts. Colours after `mostColorSwatches` are left out.
[[nodiscard]] std::string colorSwatchesBytes(const HostColorList& list);

/// Whether bytes begin like such a file, which no text does.
[[nodiscard]] bool startsColorSwatches(std::string_view bytes);

/// Reads colours in RGB, HSB, CMYK (converted without profiles), Lab and grey; others are counted
/// as skipped. Returns `std::nullopt` if the bytes are not such a file or end too early. Files do
/// not name the list.
[[nodiscard]] std::optional<ListContents> readColorSwatches(std::string_view bytes);

}  // namespace vantorel
