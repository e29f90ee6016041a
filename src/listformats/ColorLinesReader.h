#pragma once

#include "listformats/ListContents.h"

namespace vantorel {

/// Reads a text with one colour per line. A name can follow, separated from the colour by a tab or,
/// after a hex code with "#", by a space.
[[nodiscard]] ListContents readColorLines(std::string_view text);

}  // namespace vantorel
