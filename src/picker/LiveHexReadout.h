#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// What the rgb decimal field shows while a hex code is being typed: how many characters there are
/// and the components decoded so far. An asterisk marks a component of which only the first digit
/// is there. A leading "#" does not count; the characters are not validated.
[[nodiscard]] std::u16string liveHexReadout(std::u16string_view typed);

}  // namespace vantorel
