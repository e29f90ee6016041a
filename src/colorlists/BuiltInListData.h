#pragma once

#include <cstdint>
#include <span>

/// The entries of the built-in lists, in list order.
namespace vantorel {

struct BuiltInColor {
    const char16_t* key;
    std::uint32_t rgb;  ///< 0xRRGGBB
};

[[nodiscard]] std::span<const BuiltInColor> cssKeywordColors();
[[nodiscard]] std::span<const BuiltInColor> svgKeywordColors();
[[nodiscard]] std::span<const char16_t* const> browserSafeKeys();

}  // namespace vantorel
