#pragma once

#include "paletteedit/PaletteEntry.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace vantorel {

/// Proposes a name for a new colour of a list: the name of the nearest entry with a free number, if
/// the two colours are close enough for a picker to match them, else the hex code.
[[nodiscard]] std::u16string proposedName(const HostColor& color, const PaletteEntries& entries);

/// Whether a name says no more than the colour itself: it is empty, a code such as "#ff8000" or
/// "rgb(255, 128, 0)", or the "Untitled" of palette files, each also with the number that makes it
/// unique in its list.
[[nodiscard]] bool isOnlyCode(std::u16string_view name);

/// Returns what a user who names an entry probably wants to start from: its name, or, if that is
/// only a code, the name of the nearest colour of CSS with a free number. The entry itself is not
/// changed. `place` is a place in `entries`.
[[nodiscard]] std::u16string nameToStartFrom(const PaletteEntries& entries, std::size_t place);

/// Returns entries of colours that have no names, named after the nearest colours of CSS.
[[nodiscard]] PaletteEntries entriesNamedAfterCSS(const std::vector<HostColor>& colors);

}  // namespace vantorel
