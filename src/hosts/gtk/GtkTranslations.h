#pragma once

#include "host/HostMenu.h"
#include "host/HostText.h"

/// Texts of the core in the user's language, by the `Translator` of the program; without one every
/// text stays English.
namespace vantorel {

/// A text of a page or of its interface file.
[[nodiscard]] std::u16string translatedText(std::u16string_view text);

/// A title or message of a picker. Pickers select menu items by their titles and store them in
/// files, so these keep their English names everywhere but on the screen. Only a picker's own words
/// are translated: a list of the user's that is called "Color" keeps its name.
[[nodiscard]] std::u16string shownTitle(const HostMenuItem& item);
[[nodiscard]] std::u16string shownText(const HostText& text);

}  // namespace vantorel
