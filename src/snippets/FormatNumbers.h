#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// C's printf conversions of a single value, in the C locale.
namespace vantorel {

/// The flags, width and precision of a conversion.
struct FormatField {
    bool leftAligned = false;  ///< -
    bool plusSign = false;     ///< +
    bool blankSign = false;    ///< space
    bool zeroPadded = false;   ///< 0
    bool alternate = false;    ///< #
    std::size_t width = 0;
    std::optional<std::size_t> precision;
};

/// %d
[[nodiscard]] std::u16string formattedSigned(std::int64_t value, const FormatField& field);
/// %u %o %x %X, by the letter.
[[nodiscard]] std::u16string formattedUnsigned(std::uint64_t value, const FormatField& field,
                                               char16_t letter);
/// %f %F %e %E %g %G %a %A, by the letter.
[[nodiscard]] std::u16string formattedReal(double value, const FormatField& field, char16_t letter);
/// %s. The precision counts UTF-16 units.
[[nodiscard]] std::u16string formattedText(const std::u16string& text, const FormatField& field);

}  // namespace vantorel
