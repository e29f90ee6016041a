#pragma once

#include "colortext/ByteColor.h"

#include <string>

namespace vantorel {

[[nodiscard]] bool isTerminal(int descriptor);

/// Whether standard output is a terminal that says it shows true colour, and the user has not asked
/// for none (https://no-color.org).
[[nodiscard]] bool showsSwatches();

/// A patch of a colour and a blank, for such a terminal. What the colour lets through is white.
[[nodiscard]] std::string swatchOf(const ByteColor& color);

/// Asks a question on a terminal; only "y" and "yes" are a yes. Nobody to ask is a no.
[[nodiscard]] bool confirms(const std::string& question);
/// Whether there is somebody to ask.
[[nodiscard]] bool canAsk();

}  // namespace vantorel
