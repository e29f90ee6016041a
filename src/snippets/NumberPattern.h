#pragma once

#include "snippets/FormatParts.h"
#include "snippets/SnippetValues.h"

#include <optional>
#include <string_view>

namespace vantorel {

/// The numbers that a conversion writes for a value of a colour, to find and to read them in texts.
class NumberPattern {
public:
    NumberPattern(const FormatConversion& conversion, const SnippetValue& value);

    /// Why a number does not say which value was written.
    enum class Loss : std::uint8_t {
        none,
        character,    ///< %c
        wholeNumber,  ///< an integer conversion of a fraction
        cutText,      ///< %s with a precision
        highBits,     ///< %hhd of a packed colour
    };
    [[nodiscard]] Loss loss() const { return _loss; }

    /// Returns the length of the number at the beginning of a text, or 0 if there is none. Numbers
    /// with fewer or more decimals than the conversion writes are accepted.
    [[nodiscard]] std::size_t numberAt(std::u16string_view text) const;
    /// Whether the length of what the conversion writes has bounds. `%g`, for example, has none.
    [[nodiscard]] bool hasBounds() const { return _mostUnits > 0; }
    /// The least and the largest number of units that are written, without blanks.
    [[nodiscard]] std::size_t fewestUnits() const { return _fewestUnits; }
    [[nodiscard]] std::size_t mostUnits() const { return _mostUnits; }
    /// The length of a number with so many units and the blanks around it.
    [[nodiscard]] std::size_t paddedLength(std::size_t units) const;
    /// Whether a unit after a number could belong to the number.
    [[nodiscard]] bool isContinuedBy(char16_t unit) const;
    /// Whether every number has a decimal point.
    [[nodiscard]] bool alwaysHasPoint() const { return _alwaysHasPoint; }
    /// Whether blanks can precede or follow the number to fill its width.
    [[nodiscard]] bool isPaddedBefore() const;
    [[nodiscard]] bool isPaddedAfter() const;

    struct Number {
        /// 0..1 for a fraction, otherwise the integer.
        double value = 0;
        bool hasPoint = false;
    };
    /// Reads a whole text as a number, which may be padded with blanks. Returns `std::nullopt` for
    /// numbers that cannot be the value.
    [[nodiscard]] std::optional<Number> read(std::u16string_view text) const;

private:
    enum class Kind : std::uint8_t { signedWhole, unsignedWhole, real, hexReal };

    void setWholeBounds();
    void setRealBounds();
    void setBounds(std::size_t fewestUnits, std::size_t mostUnits);
    [[nodiscard]] double largest() const;
    [[nodiscard]] std::optional<Number> readWhole(std::u16string_view digits) const;
    [[nodiscard]] std::optional<Number> readReal(std::u16string_view text) const;
    [[nodiscard]] double roundingOf(double value) const;
    [[nodiscard]] std::size_t prefixAt(std::u16string_view text) const;

    FormatField _field;
    SnippetValue _value;
    char16_t _letter;
    Loss _loss = Loss::none;
    Kind _kind = Kind::real;
    int _base = 10;
    /// The number of bits that an integer conversion prints.
    int _bits = 64;
    /// The least and the largest number of digits of an integer.
    std::size_t _fewestDigits = 1;
    std::size_t _mostDigits = 1;
    std::size_t _fewestUnits = 0;
    std::size_t _mostUnits = 0;
    bool _padsWithZeros = false;
    bool _isPadded = false;
    bool _alwaysHasPoint = false;
};

}  // namespace vantorel
