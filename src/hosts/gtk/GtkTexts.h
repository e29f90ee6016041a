#pragma once

#include "host/HostControls.h"
#include "hosts/gtk/GtkReferences.h"

#include <string>
#include <string_view>

/// Texts of the core, which are UTF-16, as GTK has them: UTF-8, with positions in characters.
namespace vantorel {

/// Malformed text is replaced, and ends before a NUL: GTK asserts both.
[[nodiscard]] std::string gtkText(std::u16string_view text);
[[nodiscard]] std::u16string coreText(const char* text);

/// Whether a text begins with another, in any letter case.
[[nodiscard]] bool hasPrefix(std::u16string_view text, std::u16string_view start);

/// Convert a position in a text between characters and UTF-16 units.
[[nodiscard]] std::size_t unitsOfCharacters(std::u16string_view text, int characters);
[[nodiscard]] int charactersOfUnits(std::u16string_view text, std::size_t units);

}  // namespace vantorel
