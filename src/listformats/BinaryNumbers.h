#pragma once

#include "host/HostColor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Parts of binary files of colours: numbers with the most significant byte first, and texts in
/// UTF-16.
namespace vantorel {

/// Appends the lowest bytes of a number, as many as `width`.
void appendBigEndian(std::string& bytes, std::uint32_t number, int width);
/// Appends the units of a text, without its length.
void appendUnits(std::string& bytes, std::u16string_view text);

/// Reads numbers from bytes. Past their end, all numbers are 0 and `hasFailed` returns true.
class BigEndianReader {
public:
    explicit BigEndianReader(std::string_view bytes) : _rest(bytes) {}

    /// Returns the next bytes; none if there are fewer.
    std::string_view take(std::size_t count);
    /// Reads a number of up to four bytes.
    std::uint32_t number(std::size_t width);
    double fraction();
    /// Reads as many units, without the NULs at the end.
    std::u16string units(std::size_t count);
    [[nodiscard]] bool hasFailed() const { return _failed; }

private:
    std::string_view _rest;
    bool _failed = false;
};

/// Returns a number of a file within limits that no colour reaches; 0 for NaN and infinity.
[[nodiscard]] double finiteNumber(double value);

// Colours as palettes store them: opaque, with 8 bits per channel.

/// Components are clamped to 0..1.
[[nodiscard]] HostColor listColorOfSRGB(double red, double green, double blue);
/// Amounts of ink, 0..1, converted without a profile.
[[nodiscard]] HostColor listColorOfCMYK(double cyan, double magenta, double yellow, double black);
/// A CIE lightness of 0..100 for the white of D50; mapped into sRGB.
[[nodiscard]] HostColor listColorOfLab(double lightness, double a, double b);

}  // namespace vantorel
