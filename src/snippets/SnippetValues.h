#pragma once

#include "color/QTXHexColorSpec.h"
#include "snippets/FormatString.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vantorel {

/// A value of a colour that a conversion of a format prints.
struct SnippetValue {
    enum class Part : std::uint8_t {
        red,
        green,
        blue,
        opacity,
        rgb,   ///< 0xRRGGBB
        argb,  ///< 0xAARRGGBB
    };

    Part part;
    /// Whether the value is a real number from 0 to 1. If not, it is an integer.
    bool isFraction;

    [[nodiscard]] bool isPacked() const { return part == Part::rgb || part == Part::argb; }
    /// The number of bits of an integer.
    [[nodiscard]] int bits() const
    {
        if (part == Part::argb) return 32;
        return part == Part::rgb ? 24 : 8;
    }
    [[nodiscard]] FormatArgument of(const QTXHexColorSpec& spec) const;
};

/// Returns the values of a variable form (see QTXCodeSnippet.h) in the order in which they fill the
/// format, or `std::nullopt` if there is no such form.
[[nodiscard]] std::optional<std::span<const SnippetValue>> valuesOfVarForm(
    std::u16string_view form);

}  // namespace vantorel
