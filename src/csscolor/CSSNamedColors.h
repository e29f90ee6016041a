#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorel {

/// The value 0xRRGGBB of one of the 148 named colours (CSS Color 4, section 6.1). `name` must be in
/// lower case. `transparent` is not among them, since it has an alpha.
[[nodiscard]] std::optional<std::uint32_t> cssNamedColor(std::u16string_view name);

/// Whether a keyword, in lower case, stands for a colour that depends on the page or the desktop
/// where it is used: `currentcolor` (section 6.4) and the system colours (section 6.2, and the
/// deprecated ones of appendix A).
[[nodiscard]] bool isContextualCSSColor(std::u16string_view keyword);

}  // namespace vantorel
