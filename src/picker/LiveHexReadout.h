#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// Returns the text that the rgb decimal field shows while the user types a hex code: the number of
/// characters and the components decoded so far. An asterisk marks a component with only its first
/// digit typed. A leading "#" is not counted. The characters are not validated. `error` is the word
/// that follows the number of too many characters.
[[nodiscard]] std::u16string liveHexReadout(std::u16string_view typed, std::u16string_view error);

}  // namespace vantorel
