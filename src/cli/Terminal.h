#pragma once

#include "colortext/ByteColor.h"
#include "result/Message.h"

#include <string>

namespace vantorel {

[[nodiscard]] bool isTerminal(int descriptor);

/// Whether standard output is a terminal that shows true colour, according to COLORTERM, or 256
/// colours, according to TERM, and the user has not turned colours off by NO_COLOR
/// (https://no-color.org).
[[nodiscard]] bool showsSwatches();

/// Returns a patch of a colour, followed by a space, as escape sequences: in true colour, or with
/// the nearest of 256 colours. A translucent colour is composed over white.
[[nodiscard]] std::string swatchOf(const ByteColor& color);

/// Asks a question on the terminal. Returns true only for the answers "y", "Y" and "yes" and for
/// the letter of yes in the user's language, and false without a terminal.
[[nodiscard]] bool confirms(const Phrase& question);
/// Whether there is a terminal to ask a question on.
[[nodiscard]] bool canAsk();

}  // namespace vantorel
