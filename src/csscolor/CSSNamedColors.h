#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vantorel {

struct CSSNamedColor {
    /// In lower case.
    std::u16string_view name;
    /// 0xRRGGBB.
    std::uint32_t value;
};

/// Returns the 148 named colours (CSS Color 4, section 6.1), sorted by name.
[[nodiscard]] std::span<const CSSNamedColor> cssNamedColors();

/// Returns the name of a value 0xRRGGBB, the first one if it has several; `std::nullopt` if it has
/// none.
[[nodiscard]] std::optional<std::u16string_view> cssNameOfColor(std::uint64_t value);

/// Returns the value 0xRRGGBB of one of the 148 named colours (CSS Color 4, section 6.1), or
/// `std::nullopt` for any other name. ASCII letters are compared without regard to case.
/// `transparent` is not among them, because it has an alpha.
[[nodiscard]] std::optional<std::uint32_t> cssNamedColor(std::u16string_view name);
[[nodiscard]] std::optional<std::uint32_t> cssNamedColor(std::string_view name);

/// Whether the colour of a keyword depends on the page or the desktop: `currentcolor` (section 6.4)
/// and the system colours (section 6.2, and the deprecated ones of appendix A). `keyword` must be
/// in lower case.
[[nodiscard]] bool isContextualCSSColor(std::u16string_view keyword);

}  // namespace vantorel
