#include "snippets/FormatString.h"

#include "color/ChannelConversion.h"
#include "snippets/FormatNumbers.h"
#include "text/ASCII.h"

#include <algorithm>
#include <optional>

namespace vantorel {
namespace {

enum class Length { hh, h, none, l };

/// One conversion of a format, from its "%" up to its letter.
struct Conversion {
    FormatField field;
    Length length = Length::none;
    char16_t letter = 0;
    std::u16string_view text;
};

std::size_t readNumber(std::u16string_view format, std::size_t& place, std::size_t most)
{
    std::size_t number = 0;
    for (; place < format.size() && isDigit(format[place]); ++place) {
        number = std::min(most, number * 10 + (format[place] - std::size_t{u'0'}));
    }
    return number;
}

void readFlags(std::u16string_view format, std::size_t& place, FormatField& field)
{
    for (; place < format.size(); ++place) {
        switch (format[place]) {
            case u'-':
                field.leftAligned = true;
                break;
            case u'+':
                field.plusSign = true;
                break;
            case u' ':
                field.blankSign = true;
                break;
            case u'0':
                field.zeroPadded = true;
                break;
            case u'#':
                field.alternate = true;
                break;
            default:
                return;
        }
    }
}

Length readLength(std::u16string_view format, std::size_t& place)
{
    constexpr std::u16string_view longs = u"lqjztL";
    std::size_t halves = 0;
    Length length = Length::none;
    for (; place < format.size(); ++place) {
        if (format[place] == u'h') {
            length = ++halves > 1 ? Length::hh : Length::h;
        } else if (longs.find(format[place]) != std::u16string_view::npos) {
            length = Length::l;
        } else {
            break;
        }
    }
    return length;
}

/// Reads the conversion that starts at `place` and advances `place` past it. Returns
/// `std::nullopt`, leaving `place` unchanged, if the format ends before the conversion's letter.
std::optional<Conversion> readConversion(std::u16string_view format, std::size_t& place)
{
    const std::size_t start = place++;
    Conversion conversion;
    readFlags(format, place, conversion.field);
    conversion.field.width = readNumber(format, place, widestFormatField);
    if (place < format.size() && format[place] == u'.') {
        ++place;
        conversion.field.precision = readNumber(format, place, finestFormatPrecision);
    }
    conversion.length = readLength(format, place);
    if (place >= format.size()) {
        place = start;
        return std::nullopt;
    }
    conversion.letter = format[place++];
    conversion.text = format.substr(start, place - start);
    return conversion;
}

std::uint64_t wholeNumber(const FormatArgument& argument)
{
    if (const auto* real = std::get_if<double>(&argument)) {
        return static_cast<std::uint64_t>(truncatedSigned(*real));
    }
    return std::get<std::uint64_t>(argument);
}

double realNumber(const FormatArgument& argument)
{
    if (const auto* whole = std::get_if<std::uint64_t>(&argument)) {
        return static_cast<double>(*whole);
    }
    return std::get<double>(argument);
}

std::int64_t signedValue(std::uint64_t number, Length length)
{
    switch (length) {
        case Length::hh:
            return static_cast<std::int8_t>(number);
        case Length::h:
            return static_cast<std::int16_t>(number);
        case Length::none:
            return static_cast<std::int32_t>(number);
        case Length::l:
            break;
    }
    return static_cast<std::int64_t>(number);
}

std::uint64_t unsignedValue(std::uint64_t number, Length length)
{
    switch (length) {
        case Length::hh:
            return number & 0xFF;
        case Length::h:
            return number & 0xFFFF;
        case Length::none:
            return number & 0xFFFFFFFF;
        case Length::l:
            break;
    }
    return number;
}

std::u16string numberAsText(const FormatArgument& argument)
{
    if (std::holds_alternative<double>(argument)) {
        return formattedReal(std::get<double>(argument), {}, u'g');
    }
    return formattedUnsigned(std::get<std::uint64_t>(argument), {}, u'u');
}

/// Converts an argument. Returns `std::nullopt` if the letter is not a conversion.
std::optional<std::u16string> converted(const Conversion& conversion,
                                        const FormatArgument& argument)
{
    const auto* text = std::get_if<std::u16string>(&argument);
    switch (conversion.letter) {
        case u'd':
        case u'i':
            if (text != nullptr) return formattedText(*text, conversion.field);
            return formattedSigned(signedValue(wholeNumber(argument), conversion.length),
                                   conversion.field);
        case u'u':
        case u'o':
        case u'x':
        case u'X':
            if (text != nullptr) return formattedText(*text, conversion.field);
            return formattedUnsigned(unsignedValue(wholeNumber(argument), conversion.length),
                                     conversion.field, conversion.letter);
        case u'c': {
            if (text != nullptr) return formattedText(*text, conversion.field);
            FormatField field = conversion.field;
            field.precision.reset();
            return formattedText({static_cast<char16_t>(wholeNumber(argument) & 0xFF)}, field);
        }
        case u'f':
        case u'F':
        case u'e':
        case u'E':
        case u'g':
        case u'G':
        case u'a':
        case u'A':
            if (text != nullptr) return formattedText(*text, conversion.field);
            return formattedReal(realNumber(argument), conversion.field, conversion.letter);
        case u's':
        case u'@':
            return formattedText(text != nullptr ? *text : numberAsText(argument),
                                 conversion.field);
        default:
            return std::nullopt;
    }
}

}  // namespace

std::u16string formatted(std::u16string_view format, std::span<const FormatArgument> arguments)
{
    std::u16string result;
    std::size_t nextArgument = 0;
    for (std::size_t place = 0; place < format.size() && result.size() < longestFormatResult;) {
        if (format[place] != u'%') {
            result += format[place++];
            continue;
        }
        const auto conversion = readConversion(format, place);
        if (!conversion) {
            result += format.substr(place);
            break;
        }
        if (conversion->letter == u'%') {
            result += u'%';
            continue;
        }
        const auto text = nextArgument < arguments.size()
                              ? converted(*conversion, arguments[nextArgument])
                              : std::nullopt;
        if (text) ++nextArgument;
        result += text ? std::u16string_view(*text) : conversion->text;
    }
    if (result.size() > longestFormatResult) result.resize(longestFormatResult);
    return result;
}

}  // namespace vantorel
