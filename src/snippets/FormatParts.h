#pragma once

#include "snippets/FormatNumbers.h"

#include <cstdint>
#include <string_view>

/// A printf format, taken apart. Formats are written and read back by the same parts.
namespace vantorel {

/// The largest width and precision. Larger values are reduced to these.
inline constexpr std::size_t widestFormatField = 1000;
inline constexpr std::size_t finestFormatPrecision = 300;

/// A conversion such as "%02x".
struct FormatConversion {
    /// How many bits of an integer are printed.
    enum class Length : std::uint8_t { hh = 8, h = 16, none = 32, l = 64 };

    FormatField field;
    Length length = Length::none;
    char16_t letter = 0;
};

/// A part of a format: a conversion that prints the next argument, or text that is copied.
struct FormatPart {
    bool isConversion = false;
    FormatConversion conversion = {};
    std::u16string_view text;
};

/// Takes a format apart, without memory of its own. What `formatted` copies unchanged is text, "%%"
/// is the text "%".
class FormatPartReader {
public:
    FormatPartReader(std::u16string_view format, std::size_t argumentCount)
        : _format(format), _argumentsLeft(argumentCount)
    {
    }

    /// Returns false at the end of the format, leaving `part` unchanged.
    [[nodiscard]] bool next(FormatPart& part);

private:
    std::u16string_view _format;
    std::size_t _argumentsLeft;
};

}  // namespace vantorel
