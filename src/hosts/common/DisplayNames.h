#pragma once

#include <string_view>

namespace vantorel {

/// Returns the key for the translation of a title or message of a picker, in the context
/// "DisplayNames"; null for other texts. Only for texts that the picker marks as its own words: a
/// colour or a list of the user's may have the same name.
///
/// Pickers select menu items by their titles and store them in files, so titles keep their English
/// names everywhere but on the screen.
[[nodiscard]] const char* displayNameKey(std::u16string_view text);

}  // namespace vantorel
