#include "snippets/FormatNumbers.h"

#include "text/ASCII.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace vantorel {
namespace {

/// Room for the longest double in %f, 309 digits, plus the largest precision.
constexpr std::size_t longestReal = std::numeric_limits<double>::max_exponent;
constexpr int defaultPrecision = 6;

/// Pads a number to the field's width: spaces on the left or right, or zeros between the prefix
/// (sign or "0x") and the digits.
std::u16string padded(const std::u16string& prefix, const std::u16string& digits,
                      const FormatField& field, bool zeros)
{
    const std::size_t length = prefix.size() + digits.size();
    const std::size_t missing = field.width > length ? field.width - length : 0;
    if (field.leftAligned) return prefix + digits + std::u16string(missing, u' ');
    if (zeros) return prefix + std::u16string(missing, u'0') + digits;
    return std::u16string(missing, u' ') + prefix + digits;
}

std::u16string signText(bool negative, const FormatField& field)
{
    if (negative) return u"-";
    if (field.plusSign) return u"+";
    return field.blankSign ? u" " : u"";
}

/// Returns the digits of an integer, at least as many as the precision; an empty text for zero with
/// precision zero.
std::u16string wholeDigits(std::uint64_t value, int base, const FormatField& field)
{
    std::u16string digits;
    if (value != 0 || field.precision.value_or(1) != 0) {
        std::array<char, std::numeric_limits<std::uint64_t>::digits> buffer{};
        const auto [end, error] =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, base);
        digits = widened({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
    }
    const std::size_t wanted = field.precision.value_or(1);
    if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), u'0');
    return digits;
}

struct RealStyle {
    std::chars_format format;
    bool hexadecimal;
    bool upperCase;
};

RealStyle styleOfLetter(char16_t letter)
{
    switch (letter) {
        case u'e':
        case u'E':
            return {std::chars_format::scientific, false, letter == u'E'};
        case u'g':
        case u'G':
            return {std::chars_format::general, false, letter == u'G'};
        case u'a':
        case u'A':
            return {std::chars_format::hex, true, letter == u'A'};
        default:
            return {std::chars_format::fixed, false, letter == u'F'};
    }
}

std::u16string realDigits(double magnitude, const FormatField& field, const RealStyle& style)
{
    std::array<char, longestReal> buffer{};
    char* const first = buffer.data();
    char* const last = buffer.data() + buffer.size();
    const auto precision = field.precision ? static_cast<int>(*field.precision) : defaultPrecision;
    const auto [end, error] = style.hexadecimal && !field.precision
                                  ? std::to_chars(first, last, magnitude, style.format)
                                  : std::to_chars(first, last, magnitude, style.format, precision);
    return widened({first, static_cast<std::size_t>(end - first)});
}

/// Applies the "#" flag to the digits of a real number: adds a decimal point and, for `%g`,
/// trailing zeros up to the number of significant digits.
std::u16string alternateDigits(std::u16string digits, std::size_t significant)
{
    std::size_t end = std::min(digits.find_first_of(u"ep"), digits.size());
    if (digits.find(u'.') == std::u16string::npos) digits.insert(end++, 1, u'.');
    const std::size_t first = digits.find_first_not_of(u"0.");
    // Leading zeros are not significant, except in zero itself.
    const std::size_t from = first < end ? first : 0;
    const std::size_t point = digits.find(u'.');
    const std::size_t have = end - from - (point >= from ? 1 : 0);
    digits.insert(end, std::max(have, significant) - have, u'0');
    return digits;
}

}  // namespace

std::u16string formattedSigned(std::int64_t value, const FormatField& field)
{
    const bool negative = value < 0;
    const auto word = static_cast<std::uint64_t>(value);
    const std::uint64_t magnitude = negative ? ~word + 1 : word;
    return padded(signText(negative, field), wholeDigits(magnitude, 10, field), field,
                  field.zeroPadded && !field.precision);
}

std::u16string formattedUnsigned(std::uint64_t value, const FormatField& field, char16_t letter)
{
    const bool hexadecimal = letter == u'x' || letter == u'X';
    const int base = hexadecimal ? 16 : (letter == u'o' ? 8 : 10);
    std::u16string digits = wholeDigits(value, base, field);
    std::u16string prefix;
    if (field.alternate && hexadecimal && value != 0) prefix = u"0x";
    if (field.alternate && base == 8 && !digits.starts_with(u'0')) digits.insert(0, 1, u'0');
    std::u16string result = padded(prefix, digits, field, field.zeroPadded && !field.precision);
    return letter == u'X' ? upperCased(std::move(result)) : result;
}

std::u16string formattedReal(double value, const FormatField& field, char16_t letter)
{
    const RealStyle style = styleOfLetter(letter);
    std::u16string prefix = signText(std::signbit(value), field);
    std::u16string digits;
    const bool finite = std::isfinite(value);
    if (finite) {
        digits = realDigits(std::fabs(value), field, style);
        if (field.alternate) {
            const bool general = style.format == std::chars_format::general;
            // `%g` treats a precision of 0 as 1.
            const std::size_t significant =
                general ? std::max<std::size_t>(field.precision.value_or(defaultPrecision), 1) : 0;
            digits = alternateDigits(std::move(digits), significant);
        }
        if (style.hexadecimal) prefix += u"0x";
    } else {
        digits = std::isnan(value) ? u"nan" : u"inf";
    }
    // "inf" and "nan" are not padded with zeros.
    std::u16string result = padded(prefix, digits, field, field.zeroPadded && finite);
    return style.upperCase ? upperCased(std::move(result)) : result;
}

std::u16string formattedText(const std::u16string& text, const FormatField& field)
{
    return padded(u"", text.substr(0, field.precision.value_or(text.size())), field, false);
}

}  // namespace vantorel
