#pragma once

#include "host/HostColor.h"
#include "host/HostGeometry.h"

#include <string>

/// Parts of pictures in SVG.
namespace vantorel {

/// Formats a number with at most three decimals.
[[nodiscard]] std::string svgNumber(double value);

/// Returns a colour without its opacity, such as "#ff8000".
[[nodiscard]] std::string svgColor(const HostColor& color);

/// Escapes a text for use between tags. XML does not allow control characters, not even escaped
/// ones, so they become spaces. U+FFFE and U+FFFF become U+FFFD.
[[nodiscard]] std::string svgText(const std::u16string& text);

/// Returns the beginning of a picture, up to its first shape. `title` is markup, and is not
/// escaped.
[[nodiscard]] std::string svgOpening(HostSize size, const std::string& title);
inline constexpr const char* svgClosing = "</g>\n</svg>\n";

}  // namespace vantorel
