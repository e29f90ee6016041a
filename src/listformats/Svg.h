#pragma once

#include "host/HostColor.h"
#include "host/HostGeometry.h"

#include <string>

/// The parts of the pictures that are written as SVG.
namespace vantorel {

/// A number with at most three decimals.
[[nodiscard]] std::string svgNumber(double value);

/// "#ff8000": the colour without its opacity.
[[nodiscard]] std::string svgColor(const HostColor& color);

/// A text between tags. XML takes no control characters, not even escaped, so they become blanks,
/// and U+FFFE and U+FFFF become U+FFFD.
[[nodiscard]] std::string svgText(const std::u16string& text);

/// The picture up to its first shape. `title` is markup.
[[nodiscard]] std::string svgOpening(HostSize size, const std::string& title);
inline constexpr const char* svgClosing = "</g>\n</svg>\n";

}  // namespace vantorel
