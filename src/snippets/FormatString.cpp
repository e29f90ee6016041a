#include "snippets/FormatString.h"

#include "color/ChannelConversion.h"
#include "snippets/FormatParts.h"

namespace vantorel {
namespace {

using Length = FormatConversion::Length;

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

std::u16string converted(const FormatConversion& conversion, const FormatArgument& argument)
{
    if (const auto* text = std::get_if<std::u16string>(&argument))
        return formattedText(*text, conversion.field);
    switch (conversion.letter) {
        case u'd':
        case u'i':
            return formattedSigned(signedValue(wholeNumber(argument), conversion.length),
                                   conversion.field);
        case u'u':
        case u'o':
        case u'x':
        case u'X':
            return formattedUnsigned(unsignedValue(wholeNumber(argument), conversion.length),
                                     conversion.field, conversion.letter);
        case u'c': {
            FormatField field = conversion.field;
            field.precision.reset();
            return formattedText({static_cast<char16_t>(wholeNumber(argument) & 0xFF)}, field);
        }
        case u's':
        case u'@':
            return formattedText(numberAsText(argument), conversion.field);
        default:
            return formattedReal(realNumber(argument), conversion.field, conversion.letter);
    }
}

}  // namespace

std::u16string formatted(std::u16string_view format, std::span<const FormatArgument> arguments)
{
    std::u16string result;
    std::size_t nextArgument = 0;
    FormatPartReader parts(format, arguments.size());
    for (FormatPart part; result.size() < longestFormatResult && parts.next(part);) {
        if (part.isConversion) {
            result += converted(part.conversion, arguments[nextArgument++]);
        } else {
            result += part.text;
        }
    }
    if (result.size() > longestFormatResult) result.resize(longestFormatResult);
    return result;
}

}  // namespace vantorel
