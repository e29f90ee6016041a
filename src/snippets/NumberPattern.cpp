#include "snippets/NumberPattern.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"
#include "text/Trimming.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace vantorel {
namespace {

/// Longer numbers are not written by any conversion of a colour.
constexpr std::size_t longestNumber = widestFormatField + finestFormatPrecision;
constexpr std::size_t usualPrecision = 6;

bool isDigitOf(int base, char16_t unit)
{
    return hexDigitValue(unit) < base;
}

bool isSpace(char16_t unit)
{
    return unit == u' ';
}

std::size_t digitCount(double largest, int base)
{
    std::size_t count = 1;
    while ((largest = std::floor(largest / base)) >= 1)
        ++count;
    return count;
}

/// Returns the number of units at the beginning of a text that pass a test.
template <class Test>
std::size_t runAt(std::u16string_view text, const Test& test)
{
    std::size_t length = 0;
    while (length < text.size() && length <= longestNumber && test(text[length]))
        ++length;
    return length;
}

/// Returns the length of an exponent such as "e+02", or 0.
std::size_t exponentAt(std::u16string_view text, char16_t letter)
{
    if (text.empty() || lowerCase(text[0]) != letter) return 0;
    const std::size_t sign = text.size() > 1 && (text[1] == u'+' || text[1] == u'-') ? 1 : 0;
    const std::size_t digits = runAt(text.substr(1 + sign), isDigit<char16_t>);
    return digits > 0 ? 1 + sign + digits : 0;
}

/// %s prints a number as text, of which the field only sets the width.
FormatField fieldOfText(const FormatField& field)
{
    FormatField width;
    width.leftAligned = field.leftAligned;
    width.width = field.width;
    return width;
}

}  // namespace

NumberPattern::NumberPattern(const FormatConversion& conversion, const SnippetValue& value)
    : _field(conversion.field), _value(value), _letter(lowerCase(conversion.letter))
{
    _bits = static_cast<int>(conversion.length);
    switch (_letter) {
        case u'd':
        case u'i':
            _kind = Kind::signedWhole;
            break;
        case u'u':
        case u'o':
        case u'x':
            _kind = Kind::unsignedWhole;
            if (_letter != u'u') _base = _letter == u'x' ? 16 : 8;
            break;
        case u'c':
            _loss = Loss::character;
            return;
        case u's':
        case u'@':
            if (_field.precision) _loss = Loss::cutText;
            _field = fieldOfText(_field);
            _letter = u'g';
            _bits = 64;
            if (!value.isFraction) _kind = Kind::unsignedWhole;
            break;
        case u'a':
            _kind = Kind::hexReal;
            _isPadded = _field.width > 0;
            return;
        default:
            break;
    }
    if (_kind == Kind::real) {
        setRealBounds();
        return;
    }
    if (_loss == Loss::none && value.isFraction) _loss = Loss::wholeNumber;
    if (_loss == Loss::none && value.bits() > _bits) _loss = Loss::highBits;
    setWholeBounds();
}

double NumberPattern::largest() const
{
    return _value.isFraction ? 1 : std::ldexp(1, _value.bits()) - 1;
}

void NumberPattern::setBounds(std::size_t fewestUnits, std::size_t mostUnits)
{
    const std::size_t zeroPadded = _padsWithZeros ? _field.width : 0;
    _fewestUnits = std::max(zeroPadded, fewestUnits);
    _mostUnits = std::max(zeroPadded, mostUnits);
    _isPadded = _field.width > _fewestUnits;
}

std::size_t NumberPattern::paddedLength(std::size_t units) const
{
    const bool hasBlankSign = _field.blankSign && !_field.plusSign;
    return std::max(_field.width, units + (hasBlankSign ? 1 : 0));
}

void NumberPattern::setWholeBounds()
{
    const bool isSigned = _kind == Kind::signedWhole;
    const std::size_t sign = isSigned && (_field.plusSign || _field.blankSign) ? 1 : 0;
    const std::size_t prefix = _field.alternate && _base == 16 ? 2 : 0;
    if (_field.precision) {
        _fewestDigits = *_field.precision;
    } else if (_field.zeroPadded && !_field.leftAligned) {
        _padsWithZeros = true;
        _fewestDigits = std::max(_field.width, sign + prefix + 1) - sign - prefix;
    }
    const std::size_t octalZero = _field.alternate && _base == 8 ? 1 : 0;
    _mostDigits = std::max(_fewestDigits + prefix, digitCount(largest(), _base) + octalZero);
    const std::size_t plus = isSigned && _field.plusSign ? 1 : 0;
    const std::size_t minus = isSigned && _value.bits() >= _bits ? 1 : plus;
    setBounds(plus + _fewestDigits, minus + prefix + _mostDigits);
}

void NumberPattern::setRealBounds()
{
    if (_letter == u'g') {
        _isPadded = _field.width > 0;
        _alwaysHasPoint = _field.alternate;
        return;
    }
    const std::size_t precision = _field.precision.value_or(usualPrecision);
    const std::size_t sign = _field.plusSign ? 1 : 0;
    _alwaysHasPoint = precision > 0 || _field.alternate;
    constexpr std::size_t exponent = 4;
    const std::size_t others =
        sign + precision + (_alwaysHasPoint ? 1 : 0) + (_letter == u'e' ? exponent : 0);
    _padsWithZeros = _field.zeroPadded && !_field.leftAligned;
    setBounds(1 + others, others + (_letter == u'e' ? 1 : digitCount(largest(), 10)));
}

bool NumberPattern::isPaddedBefore() const
{
    return _field.blankSign || (_isPadded && !_field.leftAligned);
}

bool NumberPattern::isPaddedAfter() const
{
    return _isPadded && _field.leftAligned;
}

bool NumberPattern::isContinuedBy(char16_t unit) const
{
    switch (_kind) {
        case Kind::signedWhole:
        case Kind::unsignedWhole:
            return isDigitOf(_base, unit) || (prefixAt(u"0x") > 0 && lowerCase(unit) == u'x');
        case Kind::real:
            return isDigit(unit) || unit == u'.' || (_letter != u'f' && lowerCase(unit) == u'e');
        case Kind::hexReal:
            return isHexDigit(unit) || unit == u'.' || lowerCase(unit) == u'p';
    }
    return false;
}

/// Returns the length of the sign or of "0x" at the beginning of a text, if the conversion can
/// write it.
std::size_t NumberPattern::prefixAt(std::u16string_view text) const
{
    if (text.empty()) return 0;
    if (text[0] == u'+') return _field.plusSign ? 1 : 0;
    if (text[0] == u'-') return _kind == Kind::signedWhole && _value.bits() >= _bits ? 1 : 0;
    const bool isHex =
        _kind == Kind::hexReal || (_kind == Kind::unsignedWhole && _base == 16 && _field.alternate);
    return isHex && text.size() > 1 && text[0] == u'0' && lowerCase(text[1]) == u'x' ? 2 : 0;
}

std::size_t NumberPattern::numberAt(std::u16string_view text) const
{
    std::size_t length = prefixAt(text);
    if (_kind == Kind::hexReal && length == 1) length += prefixAt(text.substr(1));
    const auto rest = [&] { return text.substr(length); };
    if (_kind == Kind::signedWhole || _kind == Kind::unsignedWhole)
        return length + runAt(rest(), [this](char16_t unit) { return isDigitOf(_base, unit); });
    const bool isHex = _kind == Kind::hexReal;
    const auto isDigitHere = [isHex](char16_t unit) { return isDigitOf(isHex ? 16 : 10, unit); };
    const std::size_t digits = runAt(rest(), isDigitHere);
    if (digits == 0) return 0;
    length += digits;
    if (rest().starts_with(u'.')) {
        const std::size_t decimals = runAt(rest().substr(1), isDigitHere);
        if (decimals > 0 || _field.alternate) length += 1 + decimals;
    }
    if (isHex) return length + exponentAt(rest(), u'p');
    return _letter == u'f' ? length : length + exponentAt(rest(), u'e');
}

std::optional<NumberPattern::Number> NumberPattern::read(std::u16string_view text) const
{
    if (text.size() > longestNumber) return std::nullopt;
    if (isPaddedBefore()) text = withoutLeading(text, isSpace);
    if (isPaddedAfter()) text = withoutTrailing(text, isSpace);
    return _kind == Kind::real || _kind == Kind::hexReal ? readReal(text) : readWhole(text);
}

std::optional<NumberPattern::Number> NumberPattern::readWhole(std::u16string_view digits) const
{
    const bool isNegative = digits.starts_with(u'-');
    const std::size_t prefix = prefixAt(digits);
    digits.remove_prefix(prefix);
    // A decimal number without its leading zeros is the same number; a hex code is another colour.
    const std::size_t fewest =
        _base == 16 ? _fewestDigits : std::min<std::size_t>(_fewestDigits, 1);
    if (digits.size() < fewest || digits.size() > _mostDigits) return std::nullopt;
    double number = 0;
    for (const char16_t digit : digits) {
        if (!isDigitOf(_base, digit)) return std::nullopt;
        number = number * _base + hexDigitValue(digit);
    }
    if (isNegative) {
        const double range = std::ldexp(1, _bits);
        if (prefix != 1 || number > range / 2 || number == 0) return std::nullopt;
        number = range - number;
    }
    if (number > largest()) return std::nullopt;
    // Without leading zeros, a colour of opacity 0 looks like one without an opacity.
    constexpr double largestRGB = 0xFFFFFF;
    if (_value.part == SnippetValue::Part::argb && number <= largestRGB &&
        _fewestDigits < digitCount(largest(), _base)) {
        return std::nullopt;
    }
    return Number{number, false};
}

std::optional<NumberPattern::Number> NumberPattern::readReal(std::u16string_view text) const
{
    if (numberAt(text) != text.size() || text.empty()) return std::nullopt;
    Number number{0, text.find(u'.') != std::u16string_view::npos ||
                         text.find_first_of(u"eE") != std::u16string_view::npos};
    while (const std::size_t prefix = prefixAt(text))
        text.remove_prefix(prefix);
    const std::string digits(text.begin(), text.end());
    std::from_chars(digits.data(), digits.data() + digits.size(), number.value,
                    _kind == Kind::hexReal ? std::chars_format::hex : std::chars_format::general);
    if (!(number.value >= 0 && number.value <= largest())) return std::nullopt;
    const double steps = _value.isFraction ? 255 : 1;
    const double nearest = std::round(number.value * steps) / steps;
    const double rounding = roundingOf(number.value);
    const bool isStep = std::fabs(number.value - nearest) <= rounding;
    if (!_value.isFraction) {
        if (!isStep) return std::nullopt;
        number.value = nearest;
        return number;
    }
    // An opacity need not be a step of 8 bits, so it is taken for one only if that is likely.
    constexpr double likelyRounding = 0.15 / 255;
    if (isStep && (_value.part != SnippetValue::Part::opacity || rounding < likelyRounding))
        number.value = nearest;
    return number;
}

/// Returns by how much a number that the conversion writes can differ from its value.
double NumberPattern::roundingOf(double value) const
{
    constexpr double half = 0.5000001;
    constexpr double ofDoubles = 1e-14;
    const auto precision = static_cast<double>(_field.precision.value_or(usualPrecision));
    if (_letter == u'f') return half * std::pow(10, -precision) + ofDoubles;
    if (_kind == Kind::hexReal)
        return _field.precision ? value * std::pow(16, -precision) : value * ofDoubles;
    if (value == 0) return 0;
    const double significant = _letter == u'e' ? precision : std::max(precision, 1.0) - 1;
    return half * std::pow(10, std::floor(std::log10(value)) - significant) + ofDoubles;
}

}  // namespace vantorel
