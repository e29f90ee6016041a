#include "color/ColorTexts.h"

#include "color/ChannelConversion.h"
#include "color/QTXHexColorSpec.h"
#include "text/Decimals.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr std::uint64_t largestComponent = 255;

/// Comparing the low byte only means that a unit such as U+0130 passes for the digit "0". This is
/// kept, because texts that have been accepted must remain valid.
char lowByte(char16_t unit)
{
    return static_cast<char>(unit & 0xFF);
}

}  // namespace

int decodeHex(char16_t character)
{
    return isHexDigit(character) ? hexDigitValue(character) : 0;
}

std::u16string hexFromInt(std::int64_t value, EntryForm entryForm)
{
    if (value < 0 || value > 15) return u"0";
    std::u16string digit;
    appendHexDigits(digit, static_cast<std::uint64_t>(value), 1, hexCaseOf(entryForm));
    return digit;
}

std::uint64_t readHex(std::u16string_view text)
{
    if (text.empty()) return 0;
    const char16_t second = text.size() > 1 ? text[1] : u'\0';
    const int value = decodeHex(text[0]) * 16 + decodeHex(second);
    return static_cast<std::uint64_t>(value);
}

std::uint64_t readInt(std::u16string_view text)
{
    constexpr std::size_t mostDigits = 3;
    std::size_t place = 0;
    while (place < text.size() && !isDigit(lowByte(text[place])))
        ++place;
    std::uint64_t value = 0;
    for (std::size_t count = 0;
         count < mostDigits && place < text.size() && isDigit(lowByte(text[place]));
         ++count, ++place) {
        value = value * 10 + static_cast<std::uint64_t>(lowByte(text[place]) - '0');
    }
    return std::min(value, largestComponent);
}

std::uint64_t readFraction(std::u16string_view text)
{
    constexpr std::array divisors{10.0, 100.0, 1000.0, 10000.0, 100000.0};
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char c = lowByte(text[place]);
        if (c >= '1' && c <= '9') return largestComponent;
        if (c != '.') continue;
        double fraction = 0;
        for (const double divisor : divisors) {
            if (++place >= text.size() || !isDigit(lowByte(text[place]))) break;
            fraction += (lowByte(text[place]) - '0') / divisor;
        }
        return std::min(truncatedUnsigned(fraction * 255.5), largestComponent);
    }
    return 0;
}

std::uint64_t readComponent(std::u16string_view text, ComponentDisplay display)
{
    switch (display) {
        case ComponentDisplay::hex:
            return readHex(text);
        case ComponentDisplay::integer:
            return readInt(text);
        case ComponentDisplay::fraction:
            return readFraction(text);
        case ComponentDisplay::codeSnippet:
            break;
    }
    return 0;
}

std::u16string hexCompStringHexColorSpec(std::uint64_t component, EntryForm entryForm)
{
    // The high digit of a component above 255 is out of range and is written as "0".
    const std::uint64_t high = std::min<std::uint64_t>(component >> 4, 16);
    return hexFromInt(static_cast<std::int64_t>(high), entryForm) +
           hexFromInt(static_cast<std::int64_t>(component & 15), entryForm);
}

std::optional<std::u16string> compStringHexColorSpec(std::uint64_t component, EntryForm entryForm,
                                                     ComponentDisplay display)
{
    switch (display) {
        case ComponentDisplay::hex:
        case ComponentDisplay::codeSnippet:
            return hexCompStringHexColorSpec(component, entryForm);
        case ComponentDisplay::integer:
            // Only the low 32 bits are written, as for a C int.
            return decimalText(static_cast<std::int32_t>(component));
        case ComponentDisplay::fraction:
            return widened(fixedText(static_cast<double>(component) / 255, 3));
    }
    return std::nullopt;
}

std::optional<std::u16string> validHexString(std::u16string_view text, int digits)
{
    constexpr std::size_t longest = 7;
    if (text.empty() || digits < 0) return std::nullopt;
    const auto wanted = static_cast<std::size_t>(digits);
    if (text.size() > wanted + 1) return std::nullopt;
    const std::size_t poundSigns = text.front() == u'#' ? 1 : 0;
    const std::u16string_view typed = text.substr(poundSigns);
    if (!std::all_of(typed.begin(), typed.end(), isHexDigit<char16_t>)) return std::nullopt;

    std::u16string result(text);
    if (typed.size() == wanted / 2 || typed.size() == 1) {
        if (poundSigns + wanted > longest) return std::nullopt;
        result.resize(poundSigns);
        const std::size_t copies = typed.size() == wanted / 2 ? 2 : wanted;
        for (const char16_t digit : typed)
            result.append(copies, digit);
        // Truncate: an odd number of digits cannot consist of doubled digits alone.
        result.resize(poundSigns + std::min(wanted, typed.size() * copies));
    }
    const bool lengthMatters = digits == 6 || digits == 7;
    if (lengthMatters && result.size() != poundSigns + wanted) return std::nullopt;
    return result;
}

HostColor webSafeColorFromName(std::u16string_view name)
{
    constexpr std::size_t codeLength = 6;
    if (name.size() < codeLength) return HostColor::blackColor();
    QTXHexColorSpec spec;
    spec.setWithString(name.substr(name.size() - codeLength));
    return spec.colorHexColorSpec();
}

}  // namespace vantorel
